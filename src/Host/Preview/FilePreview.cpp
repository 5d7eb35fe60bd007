#include "Host/Preview/FilePreview.h"

#include <QEvent>
#include <QFile>
#include <QFontDatabase>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QStringList>
#include <QTabWidget>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>

#include "Host/App/Texts.h"
#include "Host/Preview/CsvTableModel.h"

namespace host {

namespace {

constexpr ptrdiff_t kMaxShownLines = 200000;
constexpr int kMeasuredRows = 50;    // for the widths of the columns
constexpr int kMaxColumnWidth = 20;  // in heights of the font

QString _LineEndsText(LineEnds lineEnds) {
  switch (lineEnds) {
    case LineEnds::kNone: return Texts::tr("no line ends");
    case LineEnds::kLf: return Texts::tr("line ends LF");
    case LineEnds::kCrLf: return Texts::tr("line ends CR LF");
    case LineEnds::kCr: return Texts::tr("line ends CR");
    case LineEnds::kMixed: return Texts::tr("different line ends");
  }
  return {};
}

QString _EncodingText(TextEncoding encoding) {
  if (encoding == TextEncoding::kUtf8WithBom) return Texts::tr("UTF-8 with a byte-order mark");
  return QString::fromLatin1(EncodingName(encoding));
}

// So much of the text as has that many lines, whichever way they end.
std::string_view _FirstLines(std::string_view text, ptrdiff_t lines) {
  const auto end = std::ranges::find_if(text, [lines, found = ptrdiff_t{0}](char character) mutable {
    if (character == '\n' || character == '\r') ++found;
    return found > lines;
  });
  return {text.begin(), end};
}

QLabel* _MakeLabel(QWidget* parent, const char* name) {
  auto* const label = new QLabel(parent);
  label->setObjectName(QLatin1String(name));
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

}  // namespace

QByteArray BeginningOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.read(FilePreview::kMaxShownBytes) : QByteArray();
}

FilePreview::FilePreview(QWidget* parent)
    : QWidget(parent),
      m_pages(new QTabWidget(this)),
      m_model(new CsvTableModel(this)),
      m_table(new QTableView(m_pages)),
      m_text(new QPlainTextEdit(m_pages)),
      m_cut(_MakeLabel(this, "fileCut")),
      m_factsText(_MakeLabel(this, "fileFacts")) {
  setObjectName(QStringLiteral("filePreview"));
  m_pages->setObjectName(QStringLiteral("filePages"));
  MakeTable();
  MakeText();
  m_pages->addTab(m_table, QString());
  m_pages->addTab(m_text, QString());
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(m_pages, 1);
  layout->addWidget(m_cut);
  layout->addWidget(m_factsText);
  Retranslate();
}

void FilePreview::MakeTable() {
  m_table->setObjectName(QStringLiteral("fileTable"));
  m_table->setModel(m_model);
  m_table->setAlternatingRowColors(true);
  m_table->setTabKeyNavigation(false);
  m_table->setWordWrap(false);
  m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  m_table->horizontalHeader()->setResizeContentsPrecision(kMeasuredRows);
}

void FilePreview::MakeText() {
  m_text->setObjectName(QStringLiteral("fileText"));
  m_text->setReadOnly(true);
  m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  m_text->setTabChangesFocus(true);
  m_text->setUndoRedoEnabled(false);
  m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
  m_text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
}

void FilePreview::Show(const QByteArray& bytes, const FileReading& reading, qint64 size) {
  const std::string_view shown =
      _FirstLines({bytes.constData(), static_cast<size_t>(std::min(qint64{bytes.size()}, kMaxShownBytes))},
                  kMaxShownLines);
  m_reading = reading;
  m_size = std::max(size, qint64{bytes.size()});
  m_isCut = static_cast<qint64>(shown.size()) < m_size;
  m_whyNot.clear();
  const std::string text = DecodeForReading(shown, reading.encoding);
  m_lineEnds = LineEndsOf(text);
  ShowTable(text);
  m_text->setPlainText(QString::fromStdString(text));
  Retranslate();
}

void FilePreview::ShowNothing(const QString& why) {
  m_size = -1;
  m_isCut = false;
  m_whyNot = why;
  ShowTable({});
  m_text->clear();
  Retranslate();
}

// The widths that the user gave to columns stay as long as these do.
void FilePreview::ShowTable(const std::string& text) {
  if (m_model->SetRows(ReadCsv(text, m_reading.delimiter))) return;
  m_table->resizeColumnsToContents();
  const int widest = fontMetrics().height() * kMaxColumnWidth;
  for (int column = 0; column < m_model->columnCount(); ++column) {
    m_table->setColumnWidth(column, std::min(m_table->columnWidth(column), widest));
  }
}

QString FilePreview::Facts() const {
  if (m_size < 0) return m_whyNot;
  QStringList facts = {_EncodingText(m_reading.encoding), _LineEndsText(m_lineEnds),
                       QLocale().formattedDataSize(m_size)};
  if (!m_isCut) facts.append(Texts::tr("%n rows below the headings", nullptr, m_model->rowCount()));
  return facts.join(QStringLiteral(" · "));
}

void FilePreview::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) Retranslate();
}

void FilePreview::Retranslate() {
  m_pages->setTabText(m_pages->indexOf(m_table), Texts::tr("&Table"));
  m_pages->setTabText(m_pages->indexOf(m_text), Texts::tr("Te&xt"));
  m_table->setAccessibleName(Texts::tr("Table"));
  m_text->setAccessibleName(Texts::tr("Text"));
  m_cut->setText(Texts::tr("The file is too large to be shown here completely; this is its beginning."));
  m_cut->setVisible(m_isCut);
  m_factsText->setText(Facts());
  m_factsText->setVisible(!m_factsText->text().isEmpty());
}

}  // namespace host
