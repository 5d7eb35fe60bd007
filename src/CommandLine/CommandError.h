// How a command that cannot do its work ends.
#ifndef GRADIX_COMMANDERROR_H
#define GRADIX_COMMANDERROR_H

#include <stdexcept>
#include <string>

// The exit statuses, which scripts rely on.
enum ExitStatus : int {
  kExitDone = 0,
  kExitUsage = 2,
  kExitClassFile = 3,    // the class file or the download: unreadable or malformed
  kExitIdentifiers = 4,  // the students' identifiers were refused
  kExitOutput = 5,       // not, or not completely, written
  kExitTrouble = 6,      // found by the check, or left by filling
};

// The status of several classes together: of 3, 5, 4, 2 (choices that the class does not have) and 6 the
// first that any of them has.
ExitStatus Worst(ExitStatus a, ExitStatus b);

// Ends the program with the status. The text, UTF-8 fit for a terminal, goes to standard error; an empty one
// ends it quietly.
class CommandError : public std::runtime_error {
 public:
  CommandError(ExitStatus status, const std::string& text) : std::runtime_error(text), m_status(status) {}

  ExitStatus Status() const { return m_status; }

 private:
  ExitStatus m_status;
};

#endif  // GRADIX_COMMANDERROR_H
