// Tells whether a drawing was changed while it is watched.
#pragma once

#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbDatabaseReactor.h"

class ChangeCounter : public AcDbDatabaseReactor {
 public:
  explicit ChangeCounter(AcDbDatabase* database) : m_database(database) {
    if (m_database) m_database->addReactor(this);
  }
  ~ChangeCounter() override {
    if (m_database) m_database->removeReactor(this);
  }
  ChangeCounter(const ChangeCounter&) = delete;
  ChangeCounter& operator=(const ChangeCounter&) = delete;

  bool changed() const { return m_changed; }
  void objectAppended(const AcDbDatabase*, const AcDbObject*) override { m_changed = true; }
  void objectModified(const AcDbDatabase*, const AcDbObject*) override { m_changed = true; }
  void objectErased(const AcDbDatabase*, const AcDbObject*, bool) override { m_changed = true; }
  void goodbye(const AcDbDatabase*) override { m_database = nullptr; }

 private:
  AcDbDatabase* m_database;
  bool m_changed = false;
};
