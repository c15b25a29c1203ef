// One shared object of a plug-in: mapped, checked, and called through its entry point.
#pragma once

#include "host/afx/CString.h"
#include "host/ed/AcRxAppMessages.h"

#include <memory>

class PlugInModule {
 public:
  // Maps the file. Null, with the reason (which file, and why) when it is missing, no shared object, lacks an
  // entry point or is built for another generation of the host.
  static std::unique_ptr<PlugInModule> open(const CString& path, CString& reason);
  ~PlugInModule();
  PlugInModule(const PlugInModule&) = delete;
  PlugInModule& operator=(const PlugInModule&) = delete;

  // Sends a message. kRetError, with the reason, when the plug-in says so or throws.
  AcRx::AppRetCode send(AcRx::AppMsgCode message, CString& reason);
  // Whether the address lies in the module.
  bool holds(const void* address) const;
  const CString& path() const { return m_path; }

  bool isLocked() const { return m_locked; }
  void setLocked(bool locked) { m_locked = locked; }
  bool isMdiAware() const { return m_mdiAware; }
  void setMdiAware(bool aware) { m_mdiAware = aware; }

 private:
  PlugInModule(CString path, void* library) : m_path(std::move(path)), m_library(library) {}

  CString m_path;
  void* m_library;
  int (*m_entryPoint)(int message, void* packet) = nullptr;
  bool m_locked = true;
  bool m_mdiAware = false;
};
