// The parameters of a fan-coil unit as a list of properties.
#include "tests/plugin/fancoil/dialogs/FanCoilDialogs.h"

namespace {

class FanCoilProperties : public testing::Test {
 protected:
  CDialog form{L"窗口"};
  CKTFCUManagerPropTree list{form, L"参数"};
};

std::string Labels(const CPropTreeGroup& group) {
  CString text = group.title + L":";
  for (const CPropTreeItem& item : group.items) text += L" " + item.label;
  return text.ToUtf8();
}

TEST_F(FanCoilProperties, StandInGroupsThatAreOpen) {
  list.Fill(false);
  std::string all;
  for (const CPropTreeGroup& group : list.Groups()) {
    EXPECT_TRUE(group.expanded);
    all += Labels(group) + "\n";
  }
  EXPECT_EQ(
      all,
      "一般参数: 厂家名称 设备型号 安装形式 结构形式 制热量(kW) 水流量(l/s) 水压降(kPa) 功率(W) 噪音(dBa) "
      "工作压力(MPa) 图块名\n"
      "风量: 风量高速(m^3/h) 风量中速(m^3/h) 风量低速(m^3/h)\n"
      "冷量: 全冷量(kW) 显冷量(kW)\n"
      "尺寸: 实际长(mm) 实际宽(mm) 实际高(mm)\n"
      "电机: 电机形式 电机数量\n"
      "盘管: 盘管形式 盘管数量\n"
      "风机: 风机形式 风机数量\n");
  list.Fill(true);
  EXPECT_EQ(list.GetItemCount(), 25) << "made anew, not once more";
}

TEST_F(FanCoilProperties, OfferTheStylesAndNone) {
  list.Fill(false);
  using Choices = std::vector<CString>;
  EXPECT_EQ(list.Item(list.FindItem(L"安装形式")).choices, (Choices{L"明装", L"暗装", L""}));
  EXPECT_EQ(list.Item(list.FindItem(L"结构形式")).choices, (Choices{L"立式", L"卧式", L""}));
}

TEST_F(FanCoilProperties, OfMakerAndBlockAreReadOnlyUntilTheyAreEnabled) {
  const auto editable = [&] {
    CString labels;
    for (int i = 0; i < list.GetItemCount(); ++i)
      if (!list.Item(i).readOnly) labels += list.Item(i).label + L" ";
    return labels;
  };
  list.Fill(true);
  EXPECT_EQ(editable(), L"");
  list.EnableNames(true);
  EXPECT_EQ(editable(), L"厂家名称 图块名 ");
  list.Fill(false);
  EXPECT_EQ(editable().Find(L"厂家名称"), -1);
  EXPECT_EQ(editable().Find(L"图块名"), -1);
  EXPECT_GE(editable().Find(L"风机数量"), 0);
  list.EnableNames(true);
  list.EnableNames(false);
  EXPECT_EQ(editable().Find(L"厂家名称"), -1);
}

TEST_F(FanCoilProperties, GiveBackEveryFieldAsItWas) {
  SKTFCUEquipmentData data = FullRecord(L"FP-34");
  data.szFactory = L"甲";
  list.Fill(true);
  list.Show(&data);
  SKTFCUEquipmentData read;
  read.dbCadLength = data.dbCadLength; // these two are no properties
  read.dbCadWidth = data.dbCadWidth;
  list.Read(read);
  EXPECT_EQ(read.szFactory, L"甲");
  ExpectSameRecord(read, data);
}

TEST_F(FanCoilProperties, LoseNoDigits) {
  list.Fill(false);
  SKTFCUEquipmentData data;
  for (const double number : {0.086, 1.0 / 3, 340.0, 1e-9, 123456789.125, -2.5, 1e300}) {
    data.dbWaterFlow = number;
    list.Show(&data);
    SKTFCUEquipmentData read;
    list.Read(read);
    EXPECT_EQ(read.dbWaterFlow, number);
  }
  data.dbWaterFlow = 0.086;
  data.dbPower = 340;
  list.Show(&data);
  EXPECT_EQ(list.GetText(list.FindItem(L"水流量(l/s)")), L"0.086");
  EXPECT_EQ(list.GetText(list.FindItem(L"功率(W)")), L"340");
}

TEST_F(FanCoilProperties, CountTextThatIsNoNumberAsZero) {
  for (const wchar_t* text : {L"abc", L"", L" ", L"\"", L"a\n1", L"\U0001F600", L"－5"}) {
    const SKTFCUEquipmentData full = FullRecord(L"FP-34");
    list.Fill(false);
    list.Show(&full);
    for (int i = 0; i < list.GetItemCount(); ++i) {
      const auto kind = list.Item(i).kind;
      if (kind == CPropTreeItem::Kind::number || kind == CPropTreeItem::Kind::integer) {
        EXPECT_TRUE(list.UserSetText(i, text));
      }
    }
    SKTFCUEquipmentData data = full;
    list.Read(data);
    EXPECT_EQ(data.szFanStyle, full.szFanStyle);
    EXPECT_EQ(data.dbCadLength, full.dbCadLength);
    for (const EquipmentField& field : kEquipmentFields) {
      const CString key = field.key;
      if (key == L"CAD长" || key == L"CAD宽") continue;
      if (const auto* number = std::get_if<double SKTFCUEquipmentData::*>(&field.member)) {
        EXPECT_EQ(data.**number, 0) << key.ToUtf8();
      }
      if (const auto* number = std::get_if<int SKTFCUEquipmentData::*>(&field.member)) {
        EXPECT_EQ(data.**number, 0) << key.ToUtf8();
      }
    }
  }
}

TEST_F(FanCoilProperties, TakeNumbersAsTheyBegin) {
  list.Fill(false);
  list.SetText(list.FindItem(L"功率(W)"), L"37.5 W");
  list.SetText(list.FindItem(L"风机数量"), L"2.9台");
  SKTFCUEquipmentData data;
  list.Read(data);
  EXPECT_EQ(data.dbPower, 37.5);
  EXPECT_EQ(data.nFanCount, 2);
}

TEST_F(FanCoilProperties, KeepAStyleThatIsNotOffered) {
  SKTFCUEquipmentData data;
  data.szInstallStyle = L"吊装";
  list.Fill(false);
  list.Show(&data);
  SKTFCUEquipmentData read;
  list.Read(read);
  EXPECT_EQ(read.szInstallStyle, L"吊装");
}

TEST_F(FanCoilProperties, PassOverItemsThatAreNotTheirs) {
  using Kind = CPropTreeItem::Kind;
  const auto add = [&](const wchar_t* label, Kind kind, const wchar_t* text) {
    CPropTreeItem item;
    item.label = label;
    item.kind = kind;
    item.text = text;
    list.AddItem(item);
  };
  list.AddGroup(L"一般参数");
  add(L"厂家名称", Kind::text, L"甲");
  add(L"型号", Kind::text, L"other label");
  add(L"安装形式", Kind::text, L"other kind");
  add(L"结构形式", Kind::choice, L"立式");
  SKTFCUEquipmentData data;
  data.szMode = L"FP-34";
  list.Read(data);
  EXPECT_EQ(data.szFactory, L"甲");
  EXPECT_EQ(data.szMode, L"FP-34");
  EXPECT_EQ(data.szInstallStyle, L"暗装");
  EXPECT_EQ(data.szStructStyle, L"立式");
  list.Show(&data);
  EXPECT_EQ(list.GetText(1), L"other label");
  EXPECT_EQ(list.GetText(2), L"other kind");
}

TEST_F(FanCoilProperties, AreEmptyWithoutAModel) {
  const SKTFCUEquipmentData data = FullRecord(L"FP-34");
  list.Fill(true);
  list.Show(&data);
  list.Show(nullptr);
  for (int i = 0; i < list.GetItemCount(); ++i) EXPECT_EQ(list.GetText(i), L"");
}

} // namespace
