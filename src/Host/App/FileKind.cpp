#include "Host/App/FileKind.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <string>

#include "Systems/Download.h"

namespace host {

namespace {

using std::string_view_literals::operator""sv;

constexpr qint64 kHeadSize = 4096;
constexpr qint64 kLargestDownload = qint64{16} * 1024 * 1024;

// Bytes that every file of the kind has at that place.
struct Signature {
  size_t offset;
  std::string_view bytes;
  FileKind kind;
};

constexpr Signature kSignatures[] = {
    {0, "\x89PNG\r\n\x1A\n"sv, FileKind::kPicture},
    {0, "\xFF\xD8\xFF"sv, FileKind::kPicture},
    {0, "GIF87a"sv, FileKind::kPicture},
    {0, "GIF89a"sv, FileKind::kPicture},
    {0, "II*\0"sv, FileKind::kPicture},
    {0, "MM\0*"sv, FileKind::kPicture},
    {8, "WEBPVP8"sv, FileKind::kPicture},
    {4, "ftyphei"sv, FileKind::kPicture},
    {4, "ftypavif"sv, FileKind::kPicture},
    {0, "%PDF-"sv, FileKind::kPdf},
    {0, "{\\rtf"sv, FileKind::kOfficeDocument},
    {0, "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"sv, FileKind::kOfficeDocument},
    {30, "[Content_Types].xml"sv, FileKind::kOfficeDocument},
    {30, "mimetypeapplication/vnd.oasis.opendocument"sv, FileKind::kOfficeDocument},
    {0, "PK\x03\x04"sv, FileKind::kArchive},
    {0, "\x1F\x8B\x08"sv, FileKind::kArchive},
    {0, "7z\xBC\xAF\x27\x1C"sv, FileKind::kArchive},
    {0, "Rar!\x1A\x07"sv, FileKind::kArchive},
    {0,
     "\xFD"
     "7zXZ\0"sv,
     FileKind::kArchive},
};

bool _HasAt(std::string_view head, size_t offset, std::string_view bytes) {
  return head.size() >= offset && head.substr(offset, bytes.size()) == bytes;
}

// The beginning of a text. One of UTF-16 without its zero bytes, which is enough for what is in ASCII.
std::string _TextOf(std::string_view head) {
  for (const std::string_view mark : {"\xEF\xBB\xBF"sv, "\xFF\xFE"sv, "\xFE\xFF"sv}) {
    if (!_HasAt(head, 0, mark)) continue;
    head.remove_prefix(mark.size());
    break;
  }
  std::string text(head);
  text.erase(std::remove(text.begin(), text.end(), '\0'), text.end());
  text.erase(0, std::min(text.find_first_not_of(" \t\r\n"), text.size()));
  return text;
}

bool _BeginsWith(const std::string& text, std::string_view lowerCase) {
  return QByteArray::fromRawData(text.data(), static_cast<qsizetype>(std::min(text.size(), lowerCase.size())))
             .toLower() ==
         QByteArray::fromRawData(lowerCase.data(), static_cast<qsizetype>(lowerCase.size()));
}

bool _IsUtf16(std::string_view head) {
  return _HasAt(head, 0, "\xFF\xFE"sv) || _HasAt(head, 0, "\xFE\xFF"sv);
}

bool _HasControlCharacters(std::string_view head) {
  return std::any_of(head.begin(), head.end(), [](char character) {
    return static_cast<unsigned char>(character) < ' ' &&
           "\t\n\f\r"sv.find(character) == std::string_view::npos;
  });
}

FileKind _KindOfMarkup(const std::string& text) {
  if (_BeginsWith(text, "<!doctype html") || _BeginsWith(text, "<html")) return FileKind::kWebPage;
  if (_BeginsWith(text, "<svg") || _BeginsWith(text, "<!doctype svg")) return FileKind::kPicture;
  return FileKind::kClass;
}

bool _IsDownload(const QString& path) {
  const QFileInfo file(path);
  if (!file.isFile() || file.size() > kLargestDownload) return false;
  Gradebook gradebook;
  return !ReadGradebook(QFile::encodeName(path).toStdString(), nullptr, &gradebook).IsFault();
}

bool _IsNamedAsTable(const QString& path) {
  const QString suffix = QFileInfo(path).suffix().toLower();
  return suffix == QLatin1String("csv") || suffix == QLatin1String("tsv");
}

}  // namespace

FileKind KindOfFile(const QString& path) {
  if (!QFileInfo(path).isFile()) return FileKind::kUnreadable;
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return FileKind::kUnreadable;
  const QByteArray head = file.read(kHeadSize);
  return KindOfFile(path, {head.data(), static_cast<size_t>(head.size())});
}

FileKind KindOfFile(const QString& path, std::string_view head) {
  for (const Signature& signature : kSignatures) {
    if (_HasAt(head, signature.offset, signature.bytes)) return signature.kind;
  }
  const std::string text = _TextOf(head);
  if (text.empty()) return FileKind::kEmpty;
  if (text[0] == '<') return _KindOfMarkup(text);
  if (!_IsUtf16(head) && _HasControlCharacters(head)) return FileKind::kOther;
  if (_IsDownload(path)) return FileKind::kDownload;
  return _IsNamedAsTable(path) ? FileKind::kTable : FileKind::kOther;
}

}  // namespace host
