#include "FCEMSProxy.h"

#include <vector>

#include "FCDebug.h"
#include "FCLog_internal.h"

FCEMSProxy* FCEMSProxy::m_pImp = nullptr;
FIIPCConnection* FCEMSProxy::m_pConnection = nullptr;
int (*FCEMSProxy::m_callback)(int, FSEventData) = nullptr;
pthread_mutex_t FCEMSProxy::m_instanceMutex = PTHREAD_MUTEX_INITIALIZER;

namespace {

// Subscriptions dropped by their last UnsubscribeSignal. Like every object
// the library hands out they are never freed; keeping them listed keeps them
// reachable, so leak checkers see them as the deliberate state they are.
std::vector<FCEMSProxy*>& Abandoned() {
  static std::vector<FCEMSProxy*>* abandoned = new std::vector<FCEMSProxy*>;
  return *abandoned;
}

}  // namespace

FCEMSProxy* FCEMSProxy::GetInstance(FIIPCConnection* connection, int (*callback)(int, FSEventData)) {
  pthread_mutex_lock(&m_instanceMutex);
  if (m_pImp == nullptr) m_pImp = new FCEMSProxy(connection, callback);
  FCEMSProxy* instance = m_pImp;
  pthread_mutex_unlock(&m_instanceMutex);
  return instance;
}

FCEMSProxy::FCEMSProxy(FIIPCConnection* connection, int (*callback)(int, FSEventData)) {
  m_pConnection = connection;
  m_callback = callback;
  // Signals are delivered from the default main context.
  if (connection != nullptr) connection->SetGMainLoop(nullptr);
}

int FCEMSProxy::SubscribeSignal(int event) {
  FC_LOG_INFO(3, "[FCEMSProxy::SubscribeSignal] Subscribe event : %d\n", event);
  pthread_mutex_lock(&m_instanceMutex);
  if (m_eventList.empty() && m_pConnection != nullptr) m_pConnection->SetEventCallbackFunction(OnEventReceived);
  m_eventList.insert(event);
  pthread_mutex_unlock(&m_instanceMutex);

  if (m_pConnection == nullptr || !m_pConnection->AddMatchRule(event)) return -1;
  return 0;
}

int FCEMSProxy::UnsubscribeSignal(int event) {
  FC_LOG_INFO(3, "[FCEMSProxy::UnsubscribeSignal] UnSubscribe event : %d\n", event);
  pthread_mutex_lock(&m_instanceMutex);
  m_eventList.erase(event);
  if (!m_eventList.empty()) {
    FC_LOG_WARN(0, "[FCEMSProxy::UnsubscribeSignal] Subscribe and UnSubcribe number is different. m_eventList.size :%d\n",
                static_cast<int>(m_eventList.size()));
  } else {
    FC_LOG_INFO(3, "[FCEMSProxy::UnsubscribeSignal] Destroy Call back Function\n");
    // The object is abandoned, not deleted: the next GetInstance makes a new one.
    if (m_pImp != nullptr) Abandoned().push_back(m_pImp);
    m_pImp = nullptr;
    if (m_pConnection != nullptr) m_pConnection->UnSetEventCallbackFunction();
  }
  pthread_mutex_unlock(&m_instanceMutex);

  if (m_pConnection == nullptr || !m_pConnection->RemoveMatchRule(event)) return -1;
  return 0;
}

void FCEMSProxy::OnEventReceived(int event, FCMessageBuffer& data) {
  int params[4];
  FCASSERT(sizeof(params) >= data.GetFullBufferSize());
  FC_LOG_INFO(3, "[FCEMSProxy::OnEventReceived] event = %d\n", event);

  FSEventData record;
  if (data.GetFullBufferSize() > 0) {
    record.param1 = data.PopInt();
    record.param2 = data.PopInt();
    record.param3 = data.PopInt();
  }
  m_callback(event, record);
}
