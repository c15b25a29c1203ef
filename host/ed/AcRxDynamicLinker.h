// Loads plug-ins and takes them out again. A plug-in goes only when it has unlocked itself and none of its
// commands is running; its commands are gone before its code is. Objects of its entity classes wake up in
// open drawings when it comes, and are kept as they are when it goes.
#pragma once

#include "host/afx/CString.h"
#include "host/db/AcRxObject.h"

#include <memory>
#include <vector>

class PlugInModule;

class AcRxDynamicLinker : public AcRxObject {
  ACRX_DECLARE_MEMBERS(AcRxDynamicLinker);

 public:
  AcRxDynamicLinker();
  ~AcRxDynamicLinker() override;

  // True for a plug-in that is loaded already. With print the reason of a failure is also told to the user.
  bool loadModule(const wchar_t* file, bool print = false);
  // False when it isn't loaded, is locked, or one of its commands is running.
  bool unloadModule(const wchar_t* file, bool print = false);
  // Every plug-in, locked ones too, the latest first: the end of the program.
  void unloadAll();
  bool isModuleLoaded(const wchar_t* file) const;
  std::vector<CString> loadedModules() const;
  // Why the last call gave false.
  const CString& lastError() const { return m_error; }

  // packet is what the entry point was given. False for anything else.
  bool unlockApplication(void* packet);
  bool lockApplication(void* packet);
  bool registerAppMDIAware(void* packet);
  bool registerAppNotMDIAware(void* packet);
  bool isApplicationLocked(const wchar_t* file) const;

 private:
  using Modules = std::vector<std::unique_ptr<PlugInModule>>;
  Modules::const_iterator find(const CString& file) const;
  PlugInModule* fromPacket(void* packet) const;
  bool fail(const CString& reason, bool print);
  void release(std::unique_ptr<PlugInModule> module);

  Modules m_modules;
  CString m_error;
};

AcRxDynamicLinker* acrxDynamicLinkerPtr();
#define acrxDynamicLinker acrxDynamicLinkerPtr()
