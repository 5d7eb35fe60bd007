#include "Common/QZXMLParse/QZClassParseContext.h"

#include <algorithm>
#include <cstring>
#include <istream>
#include <new>
#include <string_view>

namespace {

constexpr size_t kChunkSize = 4095;  // bytes read from the stream at a time

// Text beyond this is not kept: no field takes more than 200 characters of at most four bytes each.
constexpr int32_t kMaximumTextBytes = 200 * 4;

// A token that is still incomplete after this many bytes makes the next reads larger, because the parser
// scans an incomplete token from its start each time.
constexpr size_t kLongTokenBytes = 16 * kChunkSize;
constexpr size_t kMaximumRead = size_t{1} << 26;

// Entities may refer to one another, and the parser nests as deep as they do. Real class files declare none.
constexpr int32_t kMaximumEntities = 1000;
constexpr float kMaximumEntityAmplification = 10.0F;

// The parser goes through an element's declared attributes, and through the name of its namespace, at every
// occurrence of the element. Real class files declare no attribute, and their namespaces have short names.
constexpr int32_t kMaximumDeclaredAttributes = 100;
constexpr size_t kMaximumDefaultValue = 1000;
constexpr size_t kMaximumNamespace = 1000;

constexpr size_t kMaximumEncodingName = 40;

// What the handlers ask for; an element's other attributes are not kept.
constexpr std::array<std::string_view, 5> kAttributes = {"id", "number", "type", "question-id", "bank-id"};

// The part of `name` behind its namespace.
const char* _SkipNamespace(const char* name) {
  const char* separator = std::strrchr(name, '#');
  return separator == nullptr ? name : separator + 1;
}

// The index in kAttributes of a name without namespace, or kAttributes.size().
size_t _FindLocalName(const char* name) {
  size_t i = 0;
  while (i < kAttributes.size() &&
         (kAttributes[i].front() != *name || std::strcmp(kAttributes[i].data(), name) != 0)) {
    ++i;
  }
  return i;
}

size_t _FindAttribute(const char* name) {
  const size_t found = _FindLocalName(name);
  if (found < kAttributes.size()) return found;
  const char* localName = _SkipNamespace(name);
  return localName == name ? found : _FindLocalName(localName);
}

// The bytes of the whole characters among the first `size` bytes of a longer text.
int32_t _WholeCharacters(const char* text, int32_t size) {
  while (size > 0 && (static_cast<unsigned char>(text[size]) & 0xC0U) == 0x80) --size;
  return size;
}

// With or without a byte order mark: a document begins with "<".
bool _IsUtf16(const char* bytes, size_t count) {
  if (count < 2) return false;
  const auto first = static_cast<unsigned char>(bytes[0]);
  const auto second = static_cast<unsigned char>(bytes[1]);
  return (first == 0xFE && second == 0xFF) || (first == 0xFF && second == 0xFE) ||
         (first == '<' && second == 0) || (first == 0 && second == '<');
}

// The assignments behind one that has just been read.
size_t _CountLater(const std::vector<qz::AssignmentRecord>& assignments) {
  const qz::AssignmentRecord read;
  return static_cast<size_t>(std::count_if(
      assignments.begin(), assignments.end(),
      [&read](const qz::AssignmentRecord& assignment) { return qz::AssignmentLess()(read, assignment); }));
}

}  // namespace

cXmlParserContext::cXmlParserContext(qz::ClassRecord* record, qz::OriginalTexts* originals)
    : m_classRecord(record),
      m_laterAssignments(_CountLater(record->assignments)),
      m_parser(XML_ParserCreateNS(nullptr, '#')) {
  m_report.originals = originals;
  if (originals != nullptr) *originals = {};
  m_path[0] = {nullptr, _gRootElement, 0, 0};
  if (m_parser == nullptr) return;
  XML_SetUserData(m_parser, this);
  XML_SetElementHandler(m_parser, StartElement, EndElement);
  XML_SetCharacterDataHandler(m_parser, CharacterData);
  XML_SetEntityDeclHandler(m_parser, EntityDeclaration);
  XML_SetAttlistDeclHandler(m_parser, AttributeDeclaration);
  XML_SetStartNamespaceDeclHandler(m_parser, NamespaceDeclaration);
  XML_SetUnknownEncodingHandler(m_parser, UnknownEncoding, this);
  XML_SetBillionLaughsAttackProtectionMaximumAmplification(m_parser, kMaximumEntityAmplification);
}

cXmlParserContext::~cXmlParserContext() {
  XmlTreeDeleteNode(XmlTreeGetRoot(m_node));
  if (m_parser != nullptr) XML_ParserFree(m_parser);
}

bool cXmlParserContext::ProcessFile(std::istream& stream) {
  if (m_parser == nullptr) {
    m_report.fault = kClassFaultOutOfMemory;
    m_report.reason = "out of memory";
    return false;
  }
  for (;;) {
    const size_t size = ReadSize();
    auto* buffer = static_cast<char*>(XML_GetBuffer(m_parser, static_cast<int>(size + 1)));
    if (buffer == nullptr) {
      // Kept as it always was: not having a buffer is recorded, but the parse does not count as failed.
      AddOutOfMemory();
      return true;
    }
    const int length = ReadChunks(stream, buffer, size);
    const bool final = stream.fail();
    if (XML_ParseBuffer(m_parser, length, final ? XML_TRUE : XML_FALSE) == XML_STATUS_ERROR) {
      if (!m_aborted) AddParserError();
      return false;
    }
    if (m_aborted) return false;
    if (final) return true;
  }
}

size_t cXmlParserContext::ReadSize() const {
  const XML_Index parsed = XML_GetCurrentByteIndex(m_parser);
  const uint64_t unparsed = parsed < 0 ? 0 : m_bytesFed - static_cast<uint64_t>(parsed);
  if (unparsed < kLongTokenBytes) return kChunkSize;
  return static_cast<size_t>(std::min<uint64_t>(unparsed, kMaximumRead)) / kChunkSize * kChunkSize;
}

int cXmlParserContext::ReadChunks(std::istream& stream, char* buffer, size_t size) {
  size_t length = 0;
  for (size_t done = 0; done < size && !stream.fail(); done += kChunkSize) {
    char* chunk = buffer + length;
    stream.read(chunk, static_cast<std::streamsize>(kChunkSize));
    const auto count = static_cast<size_t>(stream.gcount());
    if (m_bytesFed == 0 && done == 0 && _IsUtf16(chunk, count)) m_isUtf16 = true;
    // A zero byte ends its chunk.
    const void* zero = std::memchr(chunk, 0, count);
    length += zero == nullptr ? count : static_cast<size_t>(static_cast<const char*>(zero) - chunk);
  }
  m_bytesFed += length;
  return static_cast<int>(length);
}

// Expat is C code: what is thrown below its callbacks is caught here and stops the parse.

void XMLCALL cXmlParserContext::StartElement(void* self, const XML_Char* name, const XML_Char** attributes) {
  auto* context = static_cast<cXmlParserContext*>(self);
  if (!context->m_aborted) context->Start(name, attributes);
}

void XMLCALL cXmlParserContext::EndElement(void* self, const XML_Char* /*name*/) {
  auto* context = static_cast<cXmlParserContext*>(self);
  if (context->m_aborted) return;
  try {
    context->End();
  } catch (const std::exception&) {
    context->AddOutOfMemory();
  }
}

void XMLCALL cXmlParserContext::CharacterData(void* self, const XML_Char* text, int length) {
  auto* context = static_cast<cXmlParserContext*>(self);
  if (!context->m_aborted) context->Text(text, length);
}

void XMLCALL cXmlParserContext::EntityDeclaration(void* self, const XML_Char* /*name*/, int, const XML_Char*,
                                                  int, const XML_Char*, const XML_Char*, const XML_Char*,
                                                  const XML_Char*) {
  auto* context = static_cast<cXmlParserContext*>(self);
  if (context->m_aborted || ++context->m_entityCount <= kMaximumEntities) return;
  context->Refuse("too many entity declarations");
}

void XMLCALL cXmlParserContext::AttributeDeclaration(void* self, const XML_Char*, const XML_Char*,
                                                     const XML_Char*, const XML_Char* defaultValue, int) {
  auto* context = static_cast<cXmlParserContext*>(self);
  if (context->m_aborted) return;
  if (++context->m_attributeCount > kMaximumDeclaredAttributes) {
    context->Refuse("too many attribute declarations");
  } else if (defaultValue != nullptr && std::strlen(defaultValue) > kMaximumDefaultValue) {
    context->Refuse("the default value of an attribute is too long");
  }
}

void XMLCALL cXmlParserContext::NamespaceDeclaration(void* self, const XML_Char*, const XML_Char* name) {
  auto* context = static_cast<cXmlParserContext*>(self);
  if (context->m_aborted || name == nullptr || std::strlen(name) <= kMaximumNamespace) return;
  context->Refuse("the name of a namespace is too long");
}

int XMLCALL cXmlParserContext::UnknownEncoding(void* self, const XML_Char* name, XML_Encoding* /*encoding*/) {
  try {
    static_cast<cXmlParserContext*>(self)->m_report.encoding.assign(
        name, std::min(std::strlen(name), kMaximumEncodingName));
  } catch (const std::bad_alloc&) {  // it stays without a name
  }
  return XML_STATUS_ERROR;
}

_XmlElementListTag* cXmlParserContext::TakeEntry(const char* name) {
  OpenElement& parent = m_path[m_depth];
  if (parent.list == nullptr || m_depth == kMaximumDepth) return nullptr;
  _XmlElementListTag* entry = XmlElementFindEntry(parent.list, name);
  if (entry == nullptr) {
    const char* localName = _SkipNamespace(name);
    if (localName != name) entry = XmlElementFindEntry(parent.list, localName);
    if (entry == nullptr) return nullptr;
  }
  const uint32_t bit = 1U << static_cast<uint32_t>(entry - parent.list);
  // Of a repeated text only the first counts.
  if (entry->children == nullptr && (parent.children & bit) != 0) return nullptr;
  parent.children |= bit;
  return entry;
}

void cXmlParserContext::Start(const char* name, const char** attributes) {
  _XmlElementListTag* entry = m_skippedDepth > 0 ? nullptr : TakeEntry(name);
  if (entry == nullptr) {
    if (m_depth == 0) AddError(kClassFaultNotAClass, "the document element is not class");
    ++m_skippedDepth;
    return;
  }
  m_path[++m_depth] = {entry, entry->children, 0, entry->acceptChars ? kMaximumTextBytes : 0};
  _XmlTreeTag* node =
      XmlTreeNewNode(m_node, entry->elementID, static_cast<int32_t>(XML_GetCurrentLineNumber(m_parser)),
                     static_cast<long>(XML_GetCurrentByteIndex(m_parser)));
  if (node == nullptr) return AddOutOfMemory();
  m_node = node;
  if (*attributes != nullptr) AddAttributes(attributes);
}

void cXmlParserContext::AddAttributes(const char** attributes) {
  std::array<bool, kAttributes.size()> added{};
  for (; *attributes != nullptr; attributes += 2) {
    const size_t found = _FindAttribute(attributes[0]);
    // Of several with one local name the first counts.
    if (found == kAttributes.size() || added[found]) continue;
    XmlTreeAddAttribute(m_node, kAttributes[found], attributes[1]);
    added[found] = true;
  }
}

void cXmlParserContext::Text(const char* text, int32_t length) {
  OpenElement& open = m_path[m_depth];
  if (m_skippedDepth > 0 || open.textRoom == 0) return;
  const int32_t kept = length <= open.textRoom ? length : _WholeCharacters(text, open.textRoom);
  if (!XmlTreeAddText(m_node, text, kept)) return AddOutOfMemory();
  open.textRoom -= std::min(length, open.textRoom);
}

void cXmlParserContext::End() {
  if (m_skippedDepth > 0) {
    --m_skippedDepth;
    return;
  }
  const _XmlElementListTag* entry = m_path[m_depth--].entry;
  _XmlTreeTag* parent = XmlTreeGetParent(m_node);
  const auto handler = reinterpret_cast<XmlParserHandler>(entry->userData);
  if (handler != nullptr) {
    handler(this);
  } else if (entry->children != nullptr && parent != nullptr) {
    XmlTreeDeleteNode(m_node);  // a container whose parts were taken as they ended
  }
  if (parent != nullptr) m_node = parent;
}

void cXmlParserContext::AddError(QZClassFault fault, const char* reason) {
  m_aborted = true;
  SetError(fault, reason);
}

void cXmlParserContext::Refuse(const char* reason) {
  AddError(kClassFaultDeclarations, reason);
  XML_StopParser(m_parser, XML_FALSE);
}

void cXmlParserContext::AddParserError() {
  const XML_Error error = XML_GetErrorCode(m_parser);
  if (m_isUtf16) m_report.encoding = "UTF-16";
  QZClassFault fault = m_report.encoding.empty() ? kClassFaultMalformed : kClassFaultEncoding;
  if (error == XML_ERROR_NO_MEMORY) fault = kClassFaultOutOfMemory;
  SetError(fault, XML_ErrorString(error));
}

void cXmlParserContext::SetError(QZClassFault fault, const char* reason) {
  if (m_report.reason != nullptr) return;
  m_report.fault = fault;
  m_report.line = XML_GetCurrentLineNumber(m_parser);
  m_report.column = XML_GetCurrentColumnNumber(m_parser) + 1;
  m_report.reason = reason;
}
