// One parse of a class file: drives expat over the stream, keeps the tree of the record being read, and
// calls the handler of each element that ends.
#ifndef GRADIX_QZCLASSPARSECONTEXT_H
#define GRADIX_QZCLASSPARSECONTEXT_H

#include <expat.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <iosfwd>

#include "Common/QZData/QZClass.h"
#include "Common/QZXMLParse/QZClassParse.h"
#include "Common/QZXMLParse/gxml.h"
#include "Common/xmltree.h"

class cXmlParserContext;

// Takes the element that just ended, the context's node. The result is not used.
using XmlParserHandler = bool (*)(cXmlParserContext* context);

// Elements nested deeper are skipped.
constexpr int32_t kMaximumDepth = 40;

// The assignment being read. Only the first list of each kind counts, as for every repeated element.
struct PendingAssignment {
  qz::AssignmentRecord record;
  std::vector<qz::ResponseRecord> responses;  // of the results element being read
  bool questionListEnded = false;
  bool resultsListEnded = false;
  bool responseListEnded = false;
};

class cXmlParserContext {
 public:
  // `originals`, unless null, is cleared and filled.
  cXmlParserContext(qz::ClassRecord* record, qz::OriginalTexts* originals);
  ~cXmlParserContext();
  cXmlParserContext(const cXmlParserContext&) = delete;
  cXmlParserContext& operator=(const cXmlParserContext&) = delete;

  // Parses the stream to its end or to the first fault; false when there was one.
  bool ProcessFile(std::istream& stream);

  QZClassParseReport& Report() { return m_report; }
  qz::ClassRecord* Class() { return m_classRecord; }
  PendingAssignment& Pending() { return m_pending; }

  // Where the next record will stand in the class.
  size_t NextStudent() const { return m_classRecord->students.size(); }
  size_t NextAssignment() const { return m_classRecord->assignments.size() - m_laterAssignments; }

  // The innermost open element that has a node.
  _XmlTreeTag* Node() { return m_node; }

 private:
  struct OpenElement {
    const _XmlElementListTag* entry;  // null for the document itself
    _XmlElementListTag* list;         // the elements valid inside, or null
    uint32_t children;                // a bit for each entry of the list that has occurred
    int32_t textRoom;                 // bytes of character data that will still be kept
  };

  static void XMLCALL StartElement(void* self, const XML_Char* name, const XML_Char** attributes);
  static void XMLCALL EndElement(void* self, const XML_Char* name);
  static void XMLCALL CharacterData(void* self, const XML_Char* text, int length);
  static void XMLCALL EntityDeclaration(void* self, const XML_Char* name, int isParameterEntity,
                                        const XML_Char* value, int valueLength, const XML_Char* base,
                                        const XML_Char* systemID, const XML_Char* publicID,
                                        const XML_Char* notation);
  static void XMLCALL AttributeDeclaration(void* self, const XML_Char* element, const XML_Char* name,
                                           const XML_Char* type, const XML_Char* defaultValue,
                                           int isRequired);
  static void XMLCALL NamespaceDeclaration(void* self, const XML_Char* prefix, const XML_Char* name);
  static int XMLCALL UnknownEncoding(void* self, const XML_Char* name, XML_Encoding* encoding);

  void Start(const char* name, const char** attributes);
  void End();
  void Text(const char* text, int32_t length);

  // The entry of an element that begins in the innermost open one; null when it is to be skipped.
  _XmlElementListTag* TakeEntry(const char* name);
  void AddAttributes(const char** attributes);
  // Bytes to read before parsing again.
  size_t ReadSize() const;
  // Reads chunks of the stream into the parser's buffer. Returns the bytes there are to parse.
  int ReadChunks(std::istream& stream, char* buffer, size_t size);

  // End the parse: at the end of the bytes that the parser was given last, or at once.
  void AddError(QZClassFault fault, const char* reason);
  void Refuse(const char* reason);
  void AddOutOfMemory() { AddError(kClassFaultOutOfMemory, "out of memory"); }
  void AddParserError();
  void SetError(QZClassFault fault, const char* reason);

  qz::ClassRecord* m_classRecord;
  size_t m_laterAssignments;  // of the record, behind all that are read once they are sorted
  _XmlTreeTag* m_node = nullptr;
  XML_Parser m_parser;
  size_t m_depth = 0;  // open elements that are not skipped
  std::array<OpenElement, kMaximumDepth + 1> m_path{};
  uint64_t m_skippedDepth = 0;  // open elements inside these, from an unknown one on
  bool m_aborted = false;       // the callbacks do nothing any more
  int32_t m_entityCount = 0;
  int32_t m_attributeCount = 0;  // declared
  uint64_t m_bytesFed = 0;
  bool m_isUtf16 = false;
  QZClassParseReport m_report;
  PendingAssignment m_pending;
};

#endif  // GRADIX_QZCLASSPARSECONTEXT_H
