// The installed help book, shown in the desktop's browser.
#ifndef GRADIX_HELPBOOK_H
#define GRADIX_HELPBOOK_H

#include <QString>
#include <cstdint>
#include <functional>

class QWidget;

namespace host {

// The page of a topic (FormatRow::helpTopic) in the current language; of topic 0, the contents. Empty when it
// is not installed.
QString HelpPage(int32_t topic);

// Opens the page. Says so when the book is not installed or nothing can show it.
void ShowHelp(QWidget* parent, int32_t topic);

// F1 in the window opens the page of the topic that `topic` gives then.
void OfferHelp(QWidget* window, std::function<int32_t()> topic);

}  // namespace host

#endif  // GRADIX_HELPBOOK_H
