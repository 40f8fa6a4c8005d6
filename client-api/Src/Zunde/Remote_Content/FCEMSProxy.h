// Subscription to the service's numbered events.
//
// An application subscribes to event numbers; each "Event" signal the
// service sends for a subscribed number reaches the application's callback,
// on the thread that runs the default GLib main context.
#ifndef ZUNDE_FCEMSPROXY_H
#define ZUNDE_FCEMSPROXY_H

#include <pthread.h>

#include <set>

#include "FCIPCConnection.h"
#include "FCMessageBuffer.h"

// The three parameters of one event; -1 where the payload does not set one.
class FSEventData {
 public:
  virtual ~FSEventData() {}

  int param1 = -1;
  int param2 = -1;
  int param3 = -1;
};

class FIEMS {
 public:
  virtual ~FIEMS() {}
  // Both return 0 on success, -1 on failure.
  virtual int SubscribeSignal(int event) = 0;
  virtual int UnsubscribeSignal(int event) = 0;
};

class FCEMSProxy : public FIEMS {
 public:
  // The subscription of this process, made at the first call with these
  // arguments; later calls return it and ignore theirs. Once the last event
  // is unsubscribed the next call makes a fresh one.
  static FCEMSProxy* GetInstance(FIIPCConnection* connection, int (*callback)(int, FSEventData));

  int SubscribeSignal(int event) override;
  int UnsubscribeSignal(int event) override;

  // Turns a received event into a call of the application's callback. The
  // payload holds at most three ints (16 bytes); a longer one ends the process.
  static void OnEventReceived(int event, FCMessageBuffer& data);

 private:
  FCEMSProxy(FIIPCConnection* connection, int (*callback)(int, FSEventData));

  std::set<int> m_eventList;

  static FCEMSProxy* m_pImp;
  static FIIPCConnection* m_pConnection;
  static int (*m_callback)(int, FSEventData);
  static pthread_mutex_t m_instanceMutex;
};

#endif
