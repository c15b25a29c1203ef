// The fan-coil catalogue with 200 makers and 20,000 models: reading and saving it beside pugixml with the
// same tree, and how the import of an old catalogue grows.
#include <filesystem>
#include <pugixml.hpp>
#include <string>
#include <type_traits>
#include <vector>

#include <unistd.h>

#include "bench/RatioReporter.h"
#include "host/afx/AtomicFile.h"
#include "host/afx/Paths.h"
#include "plugin/base/CIDPEx.h"
#include "plugin/base/Folders.h"
#include "plugin/base/NumberText.h"
#include "plugin/fancoil/CFCUManager.h"
#include "plugin/fancoil/CatalogueFile.h"
#include "plugin/fancoil/OldCatalogueFields.h"
#include "plugin/fancoil/OldCatalogueImport.h"

namespace {

constexpr int kMakers = 200;
constexpr int kModels = 100; // of each maker

SKTFCUEquipmentData Model(int maker, int number) {
  const double size = 1.0 + number % 20;
  SKTFCUEquipmentData data;
  data.szMode = L"FP-" + ZP::itoa(number) + L"/" + ZP::itoa(maker);
  data.dbAirFlowH = 340.0 * size;
  data.dbAirFlowM = 255.0 * size;
  data.dbAirFlowL = 170.0 * size;
  data.dbCTHCapacity = 1.83 * size;
  data.dbCSHCapacity = 1.28 * size;
  data.dbHCapacity = 2.71 * size;
  data.dbWaterFlow = 0.086 * size;
  data.dbWPD = 30.0 + maker % 5;
  data.szFanStyle = L"离心";
  data.nFanCount = 1 + number % 3;
  data.szMotorStyle = L"单相电容运转";
  data.nMotorCount = 1;
  data.dbPower = 37.0 * size;
  data.dbNoiseLevel = 37.5 + number % 10;
  data.szCoilStyle = L"铜管铝片";
  data.nCoilCount = 1;
  data.dbWorkPress = 1.6;
  data.dbLength = 700.0 + 100 * size;
  data.dbWidth = 480.0;
  data.dbHeight = 240.0;
  data.szDwgPath = L"FJPG" + ZP::itoa(number % 20);
  return data;
}

// By the table of the importer, so that all old keys are there.
void FillOldModel(CIDPEx& node, const SKTFCUEquipmentData& data) {
  for (const OldCatalogueField& field : kOldCatalogueFields)
    std::visit(
        [&](auto target) {
          if constexpr (std::is_same_v<decltype(target), WidenedInteger>)
            node.SetSubValue(field.key, static_cast<int>(data.*target.member));
          else
            node.SetSubValue(field.key, data.*target);
        },
        field.target);
}

pugi::xml_node AddNode(pugi::xml_node parent, const CString& key) {
  pugi::xml_node node = parent.append_child("node");
  node.append_attribute("key") = key.ToUtf8().c_str();
  return node;
}

// The same keys and values, one element a node, taken from the store itself.
void FillXml(CIDPEx& from, pugi::xml_node into) {
  CString value;
  from.GetValue(value);
  into.append_attribute("value") = value.ToUtf8().c_str();
  for (const CString& key : from.SubKeyNames) FillXml(*from.GetSubItem(key), AddNode(into, key));
}

struct TextWriter : pugi::xml_writer {
  std::string text;
  void write(const void* data, std::size_t size) override {
    text.append(static_cast<const char*>(data), size);
  }
};

std::string XmlText(const pugi::xml_document& document) {
  TextWriter writer;
  document.save(writer, "", pugi::format_raw);
  return std::move(writer.text);
}

// An installation of the bench's own with the catalogue in its file, in memory, and in pugixml.
struct Data {
  std::filesystem::path folder;
  CFCUManager* catalogue = nullptr;
  pugi::xml_document xml;
  CString xmlPath;

  Data() {
    folder = std::filesystem::temp_directory_path() / ("fancoil_bench_" + std::to_string(::getpid()));
    std::filesystem::create_directories(folder);
    afx::SetInstallRoot(CString::FromUtf8(folder.string()));
    catalogue = CFCUManager::GetInstance();
    for (int i = 0; i < kMakers; ++i) {
      auto* factory = new CFCUFactory;
      factory->SetName(L"厂家" + ZP::itoa(i));
      catalogue->Add(factory);
      for (int j = 0; j < kModels; ++j) {
        auto* equipment = new CFCUEquipment;
        equipment->m_data = Model(i, j);
        equipment->SetName(equipment->m_data.szMode);
        factory->Add(equipment);
      }
    }
    catalogue->SaveData();
    CIDPEx store;
    store.Open(ZP::GetDataPath() + L"FCUData.idp");
    FillXml(store, xml.append_child("root"));
    xmlPath = CString::FromUtf8((folder / "FCUData.xml").string());
    afx::WriteFileAtomically(xmlPath, XmlText(xml));
  }
  ~Data() { std::filesystem::remove_all(folder); }

  // What was read in addition is freed, inside the time that is measured as with pugixml.
  void DropBehind(int makers) {
    for (int i = catalogue->m_arrFactories.GetSize() - 1; i >= makers; --i)
      delete catalogue->m_arrFactories[i];
    catalogue->m_arrFactories.SetSize(makers);
  }
};

Data& TheData() {
  static Data data;
  return data;
}

void CatalogueRead(benchmark::State& state) {
  Data& data = TheData();
  for (auto _ : state) {
    if (!data.catalogue->ReadData()) state.SkipWithError("not read");
    data.DropBehind(kMakers);
  }
}

void PugixmlRead(benchmark::State& state) {
  Data& data = TheData();
  const std::string path = data.xmlPath.ToUtf8();
  for (auto _ : state) {
    pugi::xml_document document;
    if (!document.load_file(path.c_str())) state.SkipWithError("not read");
  }
}

void CatalogueSave(benchmark::State& state) {
  Data& data = TheData();
  for (auto _ : state) {
    if (!data.catalogue->SaveData()) state.SkipWithError("not written");
  }
}

void PugixmlSave(benchmark::State& state) {
  Data& data = TheData();
  for (auto _ : state) {
    if (!afx::WriteFileAtomically(data.xmlPath, XmlText(data.xml)).ok) state.SkipWithError("not written");
  }
}

// Nothing is printed: without a front end the editor drops the lines.
void CatalogueImport(benchmark::State& state) {
  TheData();
  const int models = static_cast<int>(state.range(0));
  CIDPEx old;
  old.SetSubValue(L"Count", 1);
  old.SetSubValue(L"Manufacturer0", L"");
  CIDPEx* maker = old.GetSubItem(L"Manufacturer0");
  maker->SetSubValue(L"ManufacturerName", L"旧厂");
  maker->SetSubValue(L"FanCoilAr", L"");
  CIDPEx* list = maker->GetSubItem(L"FanCoilAr");
  list->SetSubValue(L"Count", models);
  for (int j = 0; j < models; ++j) {
    const CString key = L"FanCoil" + ZP::itoa(j);
    list->SetSubValue(key, L"");
    FillOldModel(*list->GetSubItem(key), Model(0, j));
  }
  old.Save(fancoil::kOldCataloguePath);
  const CString path = ZP::GetDataPath() + L"FCUData.idp";
  for (auto _ : state) {
    std::filesystem::remove(afx::NativePath(path));
    fancoil::ImportOldCatalogue();
  }
  CIDPEx made;
  int count = 0;
  if (made.Open(path)) made.GetSubItem(L"Factory0")->GetSubValue(L"Count", count);
  if (count != models) state.SkipWithError("not imported");
}

// The same steps in pugixml: read the file, look for the model, append it, write the file, for each model.
void PugixmlImport(benchmark::State& state) {
  Data& data = TheData();
  const CString xmlPath = CString::FromUtf8((data.folder / "import.xml").string());
  const std::string path = xmlPath.ToUtf8();
  const int models = static_cast<int>(state.range(0));
  CIDPEx record;
  for (auto _ : state) {
    afx::WriteFileAtomically(xmlPath, "<root/>");
    for (int j = 0; j < models; ++j) {
      pugi::xml_document document;
      document.load_file(path.c_str());
      pugi::xml_node root = document.child("root");
      fancoil::WriteEquipment(record, Model(0, j));
      const std::string name = Model(0, j).szMode.ToUtf8();
      if (root.find_child(
              [&](pugi::xml_node node) { return name == node.first_child().attribute("value").value(); }))
        state.SkipWithError("there already");
      FillXml(record, AddNode(root, L"Equipment" + ZP::itoa(j)));
      afx::WriteFileAtomically(xmlPath, XmlText(document));
    }
  }
}

BENCHMARK(CatalogueRead)->Unit(benchmark::kMillisecond);
BENCHMARK(PugixmlRead)->Unit(benchmark::kMillisecond);
BENCHMARK(CatalogueSave)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(PugixmlSave)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(CatalogueImport)->Arg(500)->Arg(1000)->Arg(2000)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(PugixmlImport)->Arg(500)->Arg(1000)->Arg(2000)->Unit(benchmark::kMillisecond)->Iterations(1);

std::vector<bench::Ratio> Ratios() {
  std::vector<bench::Ratio> ratios;
  for (const std::string action : {"Read", "Save", "Import/500", "Import/1000", "Import/2000"})
    ratios.push_back({action, "Catalogue" + action, "Pugixml" + action});
  ratios.push_back({"Import 1000 to 500", "CatalogueImport/1000", "CatalogueImport/500"});
  ratios.push_back({"Import 2000 to 1000", "CatalogueImport/2000", "CatalogueImport/1000"});
  return ratios;
}

} // namespace

int main(int argc, char** argv) {
  return bench::RunWithRatios(argc, argv, Ratios());
}
