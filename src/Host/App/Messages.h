// Message boxes: what happened, and what to do.
#ifndef GRADIX_MESSAGES_H
#define GRADIX_MESSAGES_H

#include <QString>

class QWidget;

namespace host {

// Shows a message and returns at once.
void ShowMessage(QWidget* parent, const QString& what, const QString& advice);

// Shows a message and returns when the user has closed it.
void AskToConfirm(QWidget* parent, const QString& what, const QString& advice);

}  // namespace host

#endif  // GRADIX_MESSAGES_H
