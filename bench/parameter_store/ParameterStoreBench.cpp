// A pipe table of fifty thousand rows in the parameter store beside the same tree in pugixml, in one run:
// from memory to memory, and through files with the same durable write behind both.
#include <filesystem>
#include <pugixml.hpp>
#include <string>
#include <vector>

#include <unistd.h>

#include "bench/RatioReporter.h"
#include "host/afx/AtomicFile.h"
#include "plugin/base/CIDPEx.h"

namespace {

constexpr int kRows = 50000;
// The fields of a row, as texts for the one and as numbers for the other.
constexpr const wchar_t* kFields[] = {L"公称直径", L"外径", L"内径", L"壁厚"};

double FieldValue(int row, int field) {
  return 15.0 + row * 0.25 + field * 1.375 + row % 7 * 0.01;
}

void FillStore(CIDPEx& tree) {
  tree.SetSubValue(L"Version", L"1.0");
  tree.SetSubValue(L"管材管径方案", L"");
  CIDPEx* table = tree.GetSubItem(L"管材管径方案");
  for (int row = 0; row < kRows; ++row) {
    CString key;
    key.Format(L"%d", row);
    table->SetSubValue(key, row);
    CIDPEx* node = table->GetSubItem(key);
    for (int field = 0; field < 4; ++field) node->SetSubValue(kFields[field], FieldValue(row, field));
  }
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

struct Data {
  CIDPEx store;
  pugi::xml_document xml;
  std::string image;
  std::string xmlText;
  std::filesystem::path folder;
  CString storePath;
  CString xmlPath;

  Data() {
    FillStore(store);
    FillXml(store, xml.append_child("root"));
    store.WriteDataToBuffer(image);
    xmlText = XmlText(xml);
    folder = std::filesystem::temp_directory_path() / ("parameter_store_bench_" + std::to_string(::getpid()));
    std::filesystem::create_directories(folder);
    storePath = CString::FromUtf8((folder / "table.idp").string());
    xmlPath = CString::FromUtf8((folder / "table.xml").string());
    store.Save(storePath);
    afx::WriteFileAtomically(xmlPath, xmlText);
  }
  ~Data() { std::filesystem::remove_all(folder); }
};

Data& TheData() {
  static Data data;
  return data;
}

// Every loading case frees the tree inside the time that is measured.
void StoreLoadMemory(benchmark::State& state) {
  Data& data = TheData();
  for (auto _ : state) {
    CIDPEx tree;
    if (!tree.ReadDataFromBuffer(data.image.data(), data.image.size())) state.SkipWithError("not read");
  }
}

void PugixmlLoadMemory(benchmark::State& state) {
  Data& data = TheData();
  for (auto _ : state) {
    pugi::xml_document document;
    if (!document.load_buffer(data.xmlText.data(), data.xmlText.size())) state.SkipWithError("not read");
  }
}

void StoreSaveMemory(benchmark::State& state) {
  Data& data = TheData();
  for (auto _ : state) {
    std::string image;
    if (!data.store.WriteDataToBuffer(image)) state.SkipWithError("not written");
    benchmark::DoNotOptimize(image.data());
  }
}

void PugixmlSaveMemory(benchmark::State& state) {
  Data& data = TheData();
  for (auto _ : state) {
    std::string text = XmlText(data.xml);
    benchmark::DoNotOptimize(text.data());
  }
}

void StoreOpenFile(benchmark::State& state) {
  Data& data = TheData();
  for (auto _ : state) {
    CIDPEx tree;
    if (!tree.Open(data.storePath)) state.SkipWithError("not read");
  }
}

void PugixmlOpenFile(benchmark::State& state) {
  Data& data = TheData();
  const std::string path = data.xmlPath.ToUtf8();
  for (auto _ : state) {
    pugi::xml_document document;
    if (!document.load_file(path.c_str())) state.SkipWithError("not read");
  }
}

void StoreSaveFile(benchmark::State& state) {
  Data& data = TheData();
  for (auto _ : state) {
    if (!data.store.Save(data.storePath)) state.SkipWithError("not written");
  }
}

void PugixmlSaveFile(benchmark::State& state) {
  Data& data = TheData();
  for (auto _ : state) {
    if (!afx::WriteFileAtomically(data.xmlPath, XmlText(data.xml)).ok) state.SkipWithError("not written");
  }
}

BENCHMARK(StoreLoadMemory)->Unit(benchmark::kMillisecond);
BENCHMARK(PugixmlLoadMemory)->Unit(benchmark::kMillisecond);
BENCHMARK(StoreSaveMemory)->Unit(benchmark::kMillisecond);
BENCHMARK(PugixmlSaveMemory)->Unit(benchmark::kMillisecond);
BENCHMARK(StoreOpenFile)->Unit(benchmark::kMillisecond);
BENCHMARK(PugixmlOpenFile)->Unit(benchmark::kMillisecond);
BENCHMARK(StoreSaveFile)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(PugixmlSaveFile)->Unit(benchmark::kMillisecond)->UseRealTime();

std::vector<bench::Ratio> Ratios() {
  std::vector<bench::Ratio> ratios;
  for (const std::string action : {"LoadMemory", "SaveMemory", "OpenFile", "SaveFile"})
    ratios.push_back({action, "Store" + action, "Pugixml" + action});
  return ratios;
}

} // namespace

int main(int argc, char** argv) {
  return bench::RunWithRatios(argc, argv, Ratios());
}
