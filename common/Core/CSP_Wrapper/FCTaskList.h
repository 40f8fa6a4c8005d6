// The tasks of an application, found by name and stopped together.
//
// The list does not own its tasks: it finds them, and at the end destroys
// them in the order they were added, so that a task added before the ones
// it feeds has stopped, and sent its last events, before they stop.
//
//   FCTaskList tasks;
//   tasks.Create();
//   tasks.Add(&reader);
//   tasks.Add(&writer);
//   tasks.Find("writer")->Send(FCEvent{kFlush});
//   tasks.StopAll();   // reader, then writer
//   tasks.Destroy();
#ifndef ZUNDE_FCTASKLIST_H
#define ZUNDE_FCTASKLIST_H

#include "FCList.h"
#include "FCTask.h"
#include "FCThread.h"

class FCTaskList {
 public:
  FCTaskList();
  virtual ~FCTaskList();

  // False when its lock cannot be made.
  bool Create();
  // Forgets the tasks still listed, leaving them running.
  virtual void Destroy();
  bool FlagCreate() const { return m_lock.FlagCreate(); }

  // Lists a created task; false when a task of the same name is listed.
  bool Add(FCTask* task);
  // Takes a task off the list, leaving it running; false when not listed.
  bool Remove(FCTask* task);
  // The listed task of that name (as the task reports it), or null.
  FCTask* Find(const char* name);

  // Destroys every listed task, one after the other in the order they were
  // added, each once it has handled its queue; the list is empty afterwards.
  // A task leaves the list as it starts stopping, so that its handlers still
  // find the tasks after it, but nobody finds it any more. Not to be called
  // from a listed task.
  void StopAll();

 private:
  FCMutex m_lock;
  FCList<FCTask*> m_tasks;
};

#endif
