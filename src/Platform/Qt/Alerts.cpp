#include "Platform/Ui/Alerts.h"

#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <memory>
#include <optional>
#include <vector>

#include "Platform/Qt/QtAlert.h"
#include "Platform/Qt/QtRegistry.h"
#include "Platform/Qt/QtText.h"
#include "Platform/Ui/DialogResources.h"
#include "Platform/Ui/Events.h"

namespace {

struct AlertText {
  QString message;
  QString explanation;
  QString defaultButton;
  QString cancelButton;  // empty: none
  bool helpButton = false;
};

struct OpenAlert {
  WindowRef window;  // null: none
  QPointer<QMessageBox> box;
};

// Keeps the window's events away from the handlers.
class Blocker {
 public:
  explicit Blocker(WindowRef window) : m_window(window) { Add(1); }
  ~Blocker() { Add(-1); }
  Blocker(const Blocker&) = delete;
  Blocker& operator=(const Blocker&) = delete;

 private:
  void Add(int count) const {
    if (ui::WindowRecord* const window = ui::FindWindow(m_window)) window->blocked += count;
  }

  WindowRef m_window;
};

// Lives as long as the process.
std::vector<OpenAlert>& _OpenAlerts() {
  static auto* const alerts = new std::vector<OpenAlert>;
  return *alerts;
}

void _Forget(const QMessageBox* box) {
  std::erase_if(_OpenAlerts(),
                [box](const OpenAlert& alert) { return alert.box.isNull() || alert.box == box; });
}

}  // namespace

void ui::CloseAlertsOf(WindowRef window) {
  const std::vector<OpenAlert> alerts = _OpenAlerts();
  for (const OpenAlert& alert : alerts) {
    if (alert.window == window && !alert.box.isNull()) alert.box->done(0);
  }
}

namespace {

QString _Text(CFStringRef string) {
  if (string == nullptr) return {};
  const std::u16string_view text = CFStringGetText(string);
  return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

AlertText _AlertText(CFStringRef message, CFStringRef explanation, const AlertParameters& parameters) {
  AlertText text{_Text(message), _Text(explanation), _Text(parameters.defaultText),
                 _Text(parameters.cancelText), parameters.helpButton};
  if (text.defaultButton.isEmpty()) text.defaultButton = QStringLiteral("OK");
  return text;
}

QMessageBox::Icon _IconOf(AlertType type) {
  switch (type) {
    case kAlertStopAlert: return QMessageBox::Critical;
    case kAlertNoteAlert: return QMessageBox::Information;
    case kAlertCautionAlert: return QMessageBox::Warning;
    default: return QMessageBox::NoIcon;
  }
}

QPushButton* _AddButton(QMessageBox* box, const QString& title, QMessageBox::ButtonRole role, int number) {
  QPushButton* const button = box->addButton(ui::Literal(title), role);
  button->setAccessibleName(title);
  button->setProperty("alertButton", number);
  return button;
}

QMessageBox* _MakeBox(AlertType type, const AlertText& text, QWidget* parent) {
  auto* const box = new QMessageBox(parent);
  box->setAttribute(Qt::WA_QuitOnClose, false);
  if (parent != nullptr) box->setWindowTitle(parent->windowTitle());
  box->setIcon(_IconOf(type));
  box->setTextFormat(Qt::PlainText);
  box->setText(text.message);
  box->setInformativeText(text.explanation);
  QPushButton* const ok =
      _AddButton(box, text.defaultButton, QMessageBox::AcceptRole, kAlertStdAlertOKButton);
  QPushButton* escape = ok;
  if (!text.cancelButton.isEmpty()) {
    escape = _AddButton(box, text.cancelButton, QMessageBox::RejectRole, kAlertStdAlertCancelButton);
  }
  if (text.helpButton) {
    _AddButton(box, QMessageBox::tr("Help"), QMessageBox::HelpRole, kAlertStdAlertHelpButton);
  }
  box->setDefaultButton(ok);
  box->setEscapeButton(escape);
  box->setWindowModality(parent == nullptr ? Qt::ApplicationModal : Qt::WindowModal);
  return box;
}

QWidget* _WidgetOf(WindowRef window) {
  const ui::WindowRecord* const record = ui::FindWindow(window);
  return record == nullptr ? nullptr : record->widget.data();
}

// The number of the button that answered; OK when the alert went without an answer.
int16_t _Run(AlertType type, const AlertText& text) {
  const WindowRef window = FrontWindow();
  const ui::WindowInUse inUse(window);
  const Blocker blocker(window);
  const QPointer<QMessageBox> box = _MakeBox(type, text, _WidgetOf(window));
  _OpenAlerts().push_back({window, box});
  box->exec();
  int16_t answer = kAlertStdAlertOKButton;
  if (!box.isNull() && box->clickedButton() != nullptr) {
    answer = static_cast<int16_t>(box->clickedButton()->property("alertButton").toInt());
  }
  _Forget(box);
  delete box.data();
  return answer;
}

}  // namespace

int16_t StandardAlert(AlertType type, CFStringRef message, CFStringRef explanation,
                      const AlertParameters& parameters) {
  if (!InitApplication()) return kAlertStdAlertOKButton;
  return _Run(type, _AlertText(message, explanation, parameters));
}

bool StandardSheet(AlertType type, CFStringRef message, CFStringRef explanation,
                   const AlertParameters& parameters, WindowRef window) {
  if (!InitApplication()) return false;
  if (window != nullptr && !IsWindowVisible(window)) return false;
  QMessageBox* const box = _MakeBox(type, _AlertText(message, explanation, parameters), _WidgetOf(window));
  box->setAttribute(Qt::WA_DeleteOnClose);
  const auto blocker = std::make_shared<std::optional<Blocker>>(std::in_place, window);
  QObject::connect(box, &QDialog::finished, box, [box, blocker] {
    blocker->reset();
    _Forget(box);
  });
  _OpenAlerts().push_back({window, box});
  if (window == nullptr) {
    box->setWindowModality(Qt::NonModal);
    box->show();
  } else {
    box->open();
  }
  return true;
}

int16_t StopAlert(int16_t id) {
  const std::optional<ui::AlertTemplate> alert = ui::ReadAlertTemplate(id);
  if (!alert) return -1;
  const std::optional<std::vector<ui::ItemTemplate>> items = ui::ReadItemList(alert->itemList);
  if (!items || items->size() < 2 || items->front().kind != kControlKindPushButton) return -1;
  if (!InitApplication()) return -1;
  AlertText text;
  text.defaultButton = ui::FromMacRoman(items->front().text);
  text.message = ui::FromMacRoman((*items)[1].text);
  if (items->size() > 2) text.explanation = ui::FromMacRoman((*items)[2].text);
  return _Run(kAlertStopAlert, text);
}
