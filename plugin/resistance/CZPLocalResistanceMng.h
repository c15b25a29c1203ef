// The store of local-resistance coefficients: fittings by name and diameter, tees and crosses by the
// direction of the flow, and the names of the pictures that show these. Whoever edits the public members
// decides when they are saved.
#pragma once

#include <map>

#include "plugin/base/CZPArray.h"
#include "plugin/resistance/CZPPipe3T4TCoe.h"
#include "plugin/resistance/CZPPipePartsCoe.h"

class VkDtDictionary;

class ZP_EXPORT CZPLocalResistanceMng {
 public:
  // The one store. The first call reads VacCal.xml, and nothing reads it into the store again. Without a
  // readable one there are no fittings and the tees have their defaults.
  static CZPLocalResistanceMng* GetInstance();
  CZPLocalResistanceMng(const CZPLocalResistanceMng&);
  CZPLocalResistanceMng& operator=(const CZPLocalResistanceMng&);
  virtual ~CZPLocalResistanceMng();

  // 1 when the file could not be read, else 0; a part that it lacks counts as read.
  int GetOpenStatus() const { return m_nOpenStatus; }
  // The first fitting of exactly that name. 1 if found; else 0, and out stays as it was.
  int GetPipePartsCoe(const CString& name, CZPPipePartsCoe& out) const;
  // The full path of the picture of a form, such as "3汇", whether or not the file is there. 1 if the form
  // has one; else 0, and path stays as it was.
  int GetBmp(const CString& form, CString& path) const;

  // Puts the two public members into the file and keeps everything else that it holds at that moment. All
  // fittings are replaced; a flow that the file lacks is not added. Coefficients keep two decimals. 0 when
  // the file can't be read, so a missing one is never made, and when it can't be written; the old one stays
  // then.
  int SaveData();

  CZPArray<CZPPipePartsCoe, CZPPipePartsCoe&> m_arrPartsCoe; // in the user's order; names may repeat
  CZPPipe3T4TCoe m_coe3T4T;

 private:
  friend class FreshStore; // stores beside the one, as if the program had just started
  CZPLocalResistanceMng();

  int ReadData();
  // The coefficient of the first item with that key, from and to the file. 0 when there is none; coe or the
  // file stays as it was.
  int GetLocalCoe(const CString& tid, double& coe, VkDtDictionary* dict);
  int SetLocalCoe(const CString& tid, double& coe, VkDtDictionary* dict);
  int GetAllBmp(VkDtDictionary* dict); // 0 without a dictionary

  int m_nOpenStatus = 1;
  std::map<CString, CString> m_mapBmp; // from the form to the file's name
};
