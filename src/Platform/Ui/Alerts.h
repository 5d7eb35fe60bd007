// Standard alerts and sheets.
#ifndef GRADIX_ALERTS_H
#define GRADIX_ALERTS_H

#include "Platform/Core/CFString.h"
#include "Platform/Ui/Windows.h"

enum AlertType : int16_t { kAlertStopAlert, kAlertNoteAlert, kAlertCautionAlert, kAlertPlainAlert };

struct AlertParameters {
  bool movable = true;
  bool helpButton = false;
  CFStringRef defaultText = nullptr;  // null: "OK"
  CFStringRef cancelText = nullptr;   // null: no such button
};

enum { kAlertStdAlertOKButton = 1, kAlertStdAlertCancelButton = 2, kAlertStdAlertHelpButton = 4 };

// Alerts have the title of their window.

// Shows the alert on the front window, if any, and waits for the answer: the button's number. Closing it
// answers Cancel, or OK when there is no Cancel.
int16_t StandardAlert(AlertType type, CFStringRef message, CFStringRef explanation,
                      const AlertParameters& parameters);

// Shows the alert as a sheet on the window (null: on its own) and returns at once. False when none can be
// shown. The sheet goes when it is answered or its window is disposed.
bool StandardSheet(AlertType type, CFStringRef message, CFStringRef explanation,
                   const AlertParameters& parameters, WindowRef window);

// Shows the alert of a resource 'ALRT' and its 'DITL' (item 1 the button, 2 the message, 3 the explanation)
// as a stop alert and waits: item 1, or -1 when there is no such resource or it is damaged.
int16_t StopAlert(int16_t id);

#endif  // GRADIX_ALERTS_H
