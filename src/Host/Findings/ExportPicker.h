// What an export is made of but for its assignments: format, student field, kind of file and separator.
#ifndef GRADIX_EXPORTPICKER_H
#define GRADIX_EXPORTPICKER_H

#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "Host/ClassView/ClassReader.h"
#include "Systems/ExportSubject.h"

class QComboBox;
class QFormLayout;
class QLabel;

namespace host {

// Begins with the format used last. Remembers the format, and for each format its field.
class ExportPicker : public QWidget {
 public:
  enum class Purpose : uint8_t {
    kReadiness,  // without the detailed report: no learning system reads it, and its dialog decides what is
                 // in it
    kOwnExport,  // every format that this program writes
  };

  // `changed` is called after any other choice, whoever made it.
  ExportPicker(QWidget* parent, std::function<void()> changed, Purpose purpose = Purpose::kReadiness);

  // Names the custom fields; the choices stay. Never null. Does not call `changed`.
  void SetClass(std::shared_ptr<const OpenClass> openClass);

  const FormatRow& Format() const { return *m_chosenFormat; }
  qz::UserIDField Identifier() const { return m_chosenField; }
  Dialect ChosenDialect() const;
  char Delimiter() const;  // a comma where the file takes nothing else

  // Chooses the format with its remembered or proposed field. What is not offered is ignored.
  void ChooseFormat(const FormatRow& format);
  void ChooseIdentifier(qz::UserIDField field);
  void ChooseDialect(Dialect dialect);

  // The export of the class's assignments at these positions, which ascend. The class outlives it.
  ExportSubject Subject(std::vector<size_t> assignments) const;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void AddRow(QLabel* label, QComboBox* combo, const char* name);
  void AddFormats();
  void Add(const FormatRow& format);
  void FormatChosen();
  void FieldChosen();
  void Retranslate();
  void ShowFields();
  void ShowFiles();
  bool TakesSemicolons() const;
  QString DialectHint() const;

  std::function<void()> m_changed;
  Purpose m_purpose;
  std::shared_ptr<const OpenClass> m_class;
  const FormatRow* m_chosenFormat;
  qz::UserIDField m_chosenField;
  QFormLayout* m_layout;
  QLabel* m_formatLabel;
  QComboBox* m_format;
  QLabel* m_fieldLabel;
  QComboBox* m_field;
  QLabel* m_dialectLabel;
  QComboBox* m_dialect;
  QLabel* m_dialectHint;
  QLabel* m_delimiterLabel;
  QComboBox* m_delimiter;
};

}  // namespace host

#endif  // GRADIX_EXPORTPICKER_H
