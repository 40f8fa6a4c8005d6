#include "FCSyncDet.h"

#include "FCClock_internal.h"
#include "FCDebug.h"
#include "FCLocked_internal.h"
#include "FCLog_internal.h"

using zunde::Locked;

namespace {

constexpr unsigned long kWaitForever = 0xFFFFFFFFUL;

}  // namespace

FCSyncDet::FCSyncDet() : m_lastTicket(0), m_quit(false) {}

FCSyncDet::~FCSyncDet() { FCASSERT(FlagCreate() == false); }

bool FCSyncDet::Create() {
  FCASSERT(FlagCreate() == false);
  if (!m_wake.Create(0)) return false;
  if (!m_lock.Create()) {
    m_wake.Destroy();
    return false;
  }
  m_quit = false;
  if (!FCThread::Create("syncdet", 0)) {
    m_lock.Destroy();
    m_wake.Destroy();
    return false;
  }
  return true;
}

void FCSyncDet::Destroy() {
  FCASSERT(FlagCreate() == true);
  {
    Locked locked(m_lock);
    m_quit = true;
  }
  m_wake.Give();
  FCThread::Destroy();
  m_running.Clear();
  m_lock.Destroy();
  m_wake.Destroy();
}

unsigned long FCSyncDet::Begin(const char* name, unsigned long thresholdMs) {
  FCASSERT(FlagCreate() == true);
  FCASSERT(name != NULL);
  const uint32_t now = zunde::MonotonicMs();
  unsigned long ticket;
  {
    Locked locked(m_lock);
    ticket = ++m_lastTicket;
    if (ticket == 0) ticket = ++m_lastTicket;
    m_running.PushBack(Operation{ticket, name, now, now + static_cast<uint32_t>(thresholdMs)});
  }
  m_wake.Give();
  return ticket;
}

void FCSyncDet::End(unsigned long ticket) {
  FCASSERT(FlagCreate() == true);
  Locked locked(m_lock);
  m_running.RemoveIf([ticket](const Operation& operation) { return operation.ticket == ticket; });
}

void FCSyncDet::Report(const Operation& operation) {
  const unsigned long waited = zunde::MonotonicMs() - operation.start;
  FC_LOG_WARN(0, "[FCSyncDet::%s] %s still running after %lu ms\n", __func__, operation.name.c_str(), waited);
}

unsigned long FCSyncDet::Scan() {
  unsigned long next = kWaitForever;
  m_running.RemoveIf([&next](const Operation& operation) {
    const int32_t left = zunde::MsUntil(operation.due);
    if (left > 0) {
      if (static_cast<unsigned long>(left) < next) next = static_cast<unsigned long>(left);
      return false;
    }
    Report(operation);
    return true;
  });
  return next;
}

void FCSyncDet::t_Main() {
  for (;;) {
    unsigned long wait;
    {
      Locked locked(m_lock);
      if (m_quit) return;
      wait = Scan();
    }
    m_wake.Try(wait);
  }
}
