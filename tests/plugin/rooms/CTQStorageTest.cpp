// Rooms of the load calculation to and from trees of parameters.
#include "plugin/rooms/CTQStorage.h"

#include <cmath>
#include <fstream>
#include <limits>
#include <type_traits>

#include "ZpPaths.h"
#include "host/afx/MessageLog.h"
#include "plugin/base/CIDPEx.h"
#include "plugin/rooms/RoomRecordFields.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace {

std::string FormatPage() {
  std::ifstream file(std::filesystem::path(ZP_SOURCE_DIR) / "docs/formats/rooms.md", std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

static_assert(std::is_base_of_v<CTQFloorSub, CTQRoom> && std::is_base_of_v<CTQMngObject, CTQFloorSub> &&
              std::is_base_of_v<CTQCalObject, CTQMngObject> && std::is_base_of_v<CTQObject, CTQCalObject> &&
              std::is_base_of_v<CObject, CTQObject>);

TEST(RoomStorage, TellsTheClassesOfARoom) {
  const CTQRoom room;
  EXPECT_TRUE(room.IsKindOf(RUNTIME_CLASS(CTQObject)));
  EXPECT_TRUE(room.IsKindOf(RUNTIME_CLASS(CTQFloorSub)));
  EXPECT_STREQ(room.GetRuntimeClass()->m_lpszClassName, L"CTQRoom");
}

TEST(RoomStorage, EveryFieldComesBack) {
  CTQRoom written;
  double number = 0.1;
  for (const auto& field : rooms::kRecordFields) {
    if (const auto* text = std::get_if<CString CTQRoom::*>(&field.member)) written.*(*text) = field.key;
    if (const auto* real = std::get_if<double CTQRoom::*>(&field.member)) written.*(*real) = number *= -3.7;
  }
  CIDPEx tree;
  ASSERT_NE(0, CTQStorage::WriteRoom(&written, &tree));
  CTQRoom read;
  ASSERT_NE(0, CTQStorage::ReadRoom(&read, &tree));
  for (const auto& field : rooms::kRecordFields)
    std::visit([&](auto member) { EXPECT_EQ(read.*member, written.*member) << CString(field.key).ToUtf8(); },
               field.member);
}

TEST(RoomStorage, FiguresThatAreNoNumbersPassThrough) {
  CTQRoom written;
  written.m_dHeatLoad = std::numeric_limits<double>::infinity();
  written.m_dWinData = std::nan("");
  CIDPEx tree;
  CTQStorage::WriteRoom(&written, &tree);
  CTQRoom read;
  ASSERT_NE(0, CTQStorage::ReadRoom(&read, &tree));
  EXPECT_EQ(read.m_dHeatLoad, written.m_dHeatLoad);
  EXPECT_TRUE(std::isnan(read.m_dWinData));
}

TEST(RoomStorage, WhatTheTreeLacksStaysAsItWas) {
  CIDPEx tree;
  tree.SetSubValue(L"Version", CString(L"1.0"));
  tree.SetSubValue(L"热负荷", 800.0);
  CTQRoom room;
  room.m_dWinData = 18;
  ASSERT_NE(0, CTQStorage::ReadRoom(&room, &tree));
  EXPECT_EQ(room.m_dHeatLoad, 800);
  EXPECT_EQ(room.m_dWinData, 18);
}

TEST(RoomStorage, WhatElseTheTreeHoldsIsKept) {
  CIDPEx tree;
  tree.SetSubValue(L"围护结构", 3);
  const CTQRoom room;
  CTQStorage::WriteRoom(&room, &tree);
  int kept = 0;
  EXPECT_NE(0, tree.GetSubValue(L"围护结构", kept));
  EXPECT_EQ(kept, 3);
}

TEST(RoomStorage, AnotherVersionIsNotRead) {
  for (const wchar_t* version : {L"2.0", L"", L"1.00"}) {
    CIDPEx tree;
    CTQRoom room;
    room.m_dWinData = 18;
    CTQStorage::WriteRoom(&room, &tree);
    tree.SetSubValue(L"Version", CString(version));
    room.m_dWinData = 20;
    afx::ClearLoggedMessages();
    EXPECT_EQ(0, CTQStorage::ReadRoom(&room, &tree));
    EXPECT_EQ(room.m_dWinData, 20);
    EXPECT_FALSE(afx::LoggedMessages().empty());
  }
}

TEST(RoomStorage, NullsAndAnEmptyTreeAreRefused) {
  CIDPEx tree;
  CTQRoom room;
  EXPECT_EQ(0, CTQStorage::ReadRoom(&room, &tree));
  EXPECT_EQ(0, CTQStorage::ReadRoom(nullptr, &tree));
  EXPECT_EQ(0, CTQStorage::ReadRoom(&room, nullptr));
  EXPECT_EQ(0, CTQStorage::WriteRoom(nullptr, &tree));
  EXPECT_EQ(0, CTQStorage::WriteRoom(&room, nullptr));
}

TEST(RoomStorage, ThePageOnTheFormTellsEveryField) {
  const std::string page = FormatPage();
  for (const auto& field : rooms::kRecordFields) {
    const CString row = CString(L"| `") + field.key + L"` | " + (field.member.index() ? L"double" : L"text");
    EXPECT_NE(page.find(row.ToUtf8()), std::string::npos) << row.ToUtf8();
  }
}
