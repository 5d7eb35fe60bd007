// The live export sessions, by id.
#ifndef GRADIX_SESSIONMGR_H
#define GRADIX_SESSIONMGR_H

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

#include "gradix/QZFilter.h"

class Session;

// What became of a session's export, with the positions that its record points to.
struct SessionOutcome {
  QZEXPORTOUTCOME told = {};
  std::vector<uint32_t> chosenAssignments = {};
};

class SessionMgr {
 public:
  SessionMgr();
  ~SessionMgr();  // ends every session

  // Creates a session of the format that `begin` names and returns its id. Throws the text
  // "Invalid format index." (const char*) when there is no such format.
  unsigned long CreateSession(const QZEXPORTBEGIN* begin);

  // The session, owned by this manager until EndSession; null for an unknown id.
  Session* GetSession(unsigned long id) const;

  // Destroys the session; cancelled unless its outcome says otherwise. An unknown id is ignored.
  void EndSession(unsigned long id);

  // What became of a session's export: of one that lives, and of one that has ended until the next is
  // created. Null for an unknown id.
  SessionOutcome* FindOutcome(unsigned long id);

 private:
  std::map<unsigned long, std::unique_ptr<Session>> m_sessions;
  std::map<unsigned long, SessionOutcome> m_outcomes;
  uint32_t m_created = 0;
};

#endif  // GRADIX_SESSIONMGR_H
