#include "Filters/GX_StdCsv/SessionMgr.h"

#include "Filters/GX_StdCsv/FormatTable.h"
#include "Filters/GX_StdCsv/Session.h"

namespace {

constexpr uint32_t kSessionIDBits = 0xFAA00000;

}  // namespace

SessionMgr::SessionMgr() = default;
SessionMgr::~SessionMgr() = default;

unsigned long SessionMgr::CreateSession(const QZEXPORTBEGIN* begin) {
  const FormatRow* format = FindFormat(begin->formatIndex);
  if (format == nullptr) throw "Invalid format index.";
  std::unique_ptr<Session> session = format->make(begin);
  std::erase_if(m_outcomes, [this](const auto& row) { return !m_sessions.contains(row.first); });
  const unsigned long id = m_created | kSessionIDBits;
  QZEXPORTOUTCOME& outcome = (m_outcomes[id] = {}).told;
  outcome.state = QZFILTER_PENDING;
  outcome.formatIndex = begin->formatIndex;
  m_sessions[id] = std::move(session);
  ++m_created;
  return id;
}

Session* SessionMgr::GetSession(unsigned long id) const {
  const auto found = m_sessions.find(id);
  return found == m_sessions.end() ? nullptr : found->second.get();
}

void SessionMgr::EndSession(unsigned long id) {
  if (m_sessions.erase(id) == 0) return;
  QZEXPORTOUTCOME& outcome = m_outcomes[id].told;
  if (outcome.state == QZFILTER_PENDING) outcome.state = QZFILTER_CANCELLED;
}

SessionOutcome* SessionMgr::FindOutcome(unsigned long id) {
  const auto found = m_outcomes.find(id);
  return found == m_outcomes.end() ? nullptr : &found->second;
}
