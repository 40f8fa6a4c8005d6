#include "FCThread.h"

#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "FCAtomic_internal.h"
#include "FCDebug.h"

using zunde::AtomicLoad;
using zunde::AtomicStore;

namespace {

const pthread_t kBodyReturned = static_cast<pthread_t>(-1);
constexpr int kUnknownKernelId = -1;

int KernelThreadId() { return static_cast<int>(syscall(SYS_gettid)); }

// The nice value of each priority: 0 high, 1 normal, 2 low.
bool NiceOfPriority(int priority, int* nice) {
  static const int kNice[] = {-10, 0, 10};
  if (priority < 0 || priority > 2) return false;
  *nice = kNice[priority];
  return true;
}

bool SetKernelThreadPriority(int kernelThreadId, int priority) {
  int nice = 0;
  if (!NiceOfPriority(priority, &nice)) return false;
  return setpriority(PRIO_PROCESS, static_cast<id_t>(kernelThreadId), nice) == 0;
}

}  // namespace

FCThread::FCThread() : m_threadId(0), m_kernelThreadId(kUnknownKernelId), m_name() {}

FCThread::~FCThread() { FCASSERT(FlagCreate() == false); }

bool FCThread::Create(const char* threadname, unsigned long stackSize) {
  FCASSERT(FlagCreate() == false);
  FCASSERT(threadname != NULL);
  if (!m_startSync.Create(0)) return false;
  if (!m_exitSync.Create(0)) {
    m_startSync.Destroy();
    return false;
  }
  std::memset(m_name, 0, sizeof m_name);
  std::strncpy(m_name, threadname, sizeof m_name - 1);

  pthread_attr_t attributes;
  pthread_attr_init(&attributes);
  pthread_attr_setdetachstate(&attributes, PTHREAD_CREATE_DETACHED);
  pthread_attr_setstacksize(&attributes, stackSize);  // a refused size keeps the default
  AtomicStore(&m_kernelThreadId, kUnknownKernelId);

  if (!m_pidSync.Create(0)) {
    m_startSync.Destroy();
    m_exitSync.Destroy();
    std::printf("\n[CSP]: ERROR: TCThread::Create() : m_pidSync Create Error");
    pthread_attr_destroy(&attributes);
    return false;
  }
  pthread_t id;
  const int error = pthread_create(&id, &attributes, &FCThread::Entry, this);
  FCASSERT_MSG(error == 0, "TCThread not created: errno = %d\n", error);
  AtomicStore(&m_threadId, id);

  pthread_attr_destroy(&attributes);
  m_startSync.Give();
  return true;
}

void* FCThread::Entry(void* self) {
  FCThread* thread = static_cast<FCThread*>(self);
  thread->m_startSync.Take();
  AtomicStore(&thread->m_kernelThreadId, KernelThreadId());
  thread->m_pidSync.Give();
  if (thread->m_name[0] != '\0') prctl(PR_SET_NAME, thread->m_name, 0, 0, 0);
  thread->t_Main();
  AtomicStore(&thread->m_threadId, kBodyReturned);
  thread->m_exitSync.Give();
  return nullptr;
}

void FCThread::Destroy() {
  FCASSERT(FlagCreate() == true);
  FCASSERT(FCThreadSelf::Id() != Id());
  m_exitSync.Take();
  m_startSync.Destroy();
  m_exitSync.Destroy();
  m_pidSync.Destroy();
}

bool FCThread::SetPriority(int priority) {
  FCASSERT(FlagCreate() == true);
  if (AtomicLoad(&m_kernelThreadId) == kUnknownKernelId) m_pidSync.Take();
  return SetKernelThreadPriority(AtomicLoad(&m_kernelThreadId), priority);
}

pthread_t FCThread::Id() const { return AtomicLoad(&m_threadId); }

pthread_t FCThreadSelf::Id() { return pthread_self(); }

bool FCThreadSelf::SetPriority(int priority) { return SetKernelThreadPriority(KernelThreadId(), priority); }
