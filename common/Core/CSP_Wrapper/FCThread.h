// Threads and locks of the task runtime, on POSIX threads.
//
// Every object here is made in two steps: construct, then `Create`; and
// undone in two: `Destroy`, then destruct. Using an object before `Create`,
// creating it twice or destructing it undestroyed is a programming error
// that ends the process through the runtime's assertion.
#ifndef ZUNDE_FCTHREAD_H
#define ZUNDE_FCTHREAD_H

#include <pthread.h>

// The one lock under which every semaphore of the process counts and waits.
extern pthread_mutex_t TimeMutex;

// A counting semaphore.
class FCSemaphore {
 public:
  FCSemaphore();
  virtual ~FCSemaphore();

  // Starts with `count` units. True when the semaphore exists.
  bool Create(int count);
  virtual void Destroy();
  bool FlagCreate() const { return m_pBlock != nullptr; }

  // Waits for a unit and takes it.
  void Take();
  // Takes a unit if one comes within `ms` milliseconds: 0 does not wait,
  // 0xFFFFFFFF waits for ever. A wake-up that finds no unit starts the whole
  // wait again. True when a unit was taken.
  bool Try(unsigned long ms);
  // Adds a unit and wakes one waiter.
  void Give();

 private:
  struct Block;
  Block* m_pBlock;

  FCSemaphore(const FCSemaphore&) = delete;
  FCSemaphore& operator=(const FCSemaphore&) = delete;
};

// A recursive lock: the owning thread may lock again, and must unlock as
// often as it locked. Unlocking from another thread does nothing.
class FCMutex {
 public:
  FCMutex();
  virtual ~FCMutex();

  // False when the lock could not be made.
  bool Create();
  virtual void Destroy();
  bool FlagCreate() const { return m_semaphore.FlagCreate(); }

  void Lock();
  void Unlock();

 private:
  FCSemaphore m_semaphore;
  pthread_t m_owner;  // 0 when free
  int m_depth;
};

// A thread whose body a subclass supplies in `t_Main`.
//
//   class Worker : public FCThread { void t_Main() override { ... } };
//   worker.Create("worker", 64 * 1024);   // starts t_Main
//   worker.Destroy();                      // waits for t_Main to return
class FCThread {
 protected:
  // The body; the thread ends when it returns. First in the virtual table.
  virtual void t_Main() = 0;

 public:
  FCThread();
  virtual ~FCThread();

  // Starts a detached thread named after the first 15 characters of `name`,
  // with a stack of `stackSize` bytes (the system's default when the size is
  // refused). False when its semaphores cannot be made; a thread the system
  // refuses ends the process.
  bool Create(const char* name, unsigned long stackSize);
  // Waits until the body has returned, then releases the thread's
  // semaphores. A thread may not destroy itself.
  virtual void Destroy();
  bool FlagCreate() const { return m_startSync.FlagCreate(); }

  // 0 high, 1 normal, 2 low; anything else is refused with false. Waits for
  // the thread to have started so that its own kernel id is changed.
  bool SetPriority(int priority);

  // The POSIX id of the thread; (pthread_t)-1 once the body has returned.
  pthread_t Id() const;

 private:
  static void* Entry(void* self);

  pthread_t m_threadId;
  int m_kernelThreadId;     // -1 until the thread runs
  FCSemaphore m_pidSync;    // given once the kernel id is known
  FCSemaphore m_startSync;  // lets the body start after Create
  FCSemaphore m_exitSync;   // given when the body has returned
  char m_name[16];

  FCThread(const FCThread&) = delete;
  FCThread& operator=(const FCThread&) = delete;
};

// Operations on the calling thread.
class FCThreadSelf {
 public:
  static pthread_t Id();
  // As FCThread::SetPriority, for the calling thread.
  static bool SetPriority(int priority);
};

#endif
