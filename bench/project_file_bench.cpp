// Load and save of the largest show the desk can hold: 200 screens, 32 chases of
// 32 steps, every button and fader, a full patch.
#include <benchmark/benchmark.h>

#include "platform/atomic_save.h"
#include "console/project/project_reader.h"
#include "console/project/project_writer.h"
#include "base/windows_1252.h"
#include "platform/posix_file_system.h"
#include "tests/support/show_builders.h"
#include "tests/support/temp_folder.h"

namespace lumaris {
namespace {

const CalendarDate kDate{2026, 11, 22};

const std::string& maximal_show_bytes() {
  static const std::string bytes = [] {
    Store store;
    build_maximal_show(store);
    return file_bytes(whole_project_document(store, kDate));
  }();
  return bytes;
}

void BM_WriteMaximalShowDocument(benchmark::State& state) {
  Store store;
  build_maximal_show(store);
  for (auto _ : state) {
    std::string bytes = file_bytes(whole_project_document(store, kDate));
    benchmark::DoNotOptimize(bytes.data());
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * maximal_show_bytes().size()));
}
BENCHMARK(BM_WriteMaximalShowDocument)->Unit(benchmark::kMillisecond);

// The whole Save: document, temporary file, fsync, rename.
void BM_SaveMaximalShowToDisk(benchmark::State& state) {
  Store store;
  build_maximal_show(store);
  TempFolder folder;
  PosixFileSystem files;
  const std::string path = folder.file("maximal.xml");
  for (auto _ : state) {
    const FileStatus status =
        save_file_atomically(files, path, file_bytes(whole_project_document(store, kDate)));
    if (!status.ok) state.SkipWithError(status.reason.c_str());
  }
}
BENCHMARK(BM_SaveMaximalShowToDisk)->Unit(benchmark::kMillisecond);

void BM_ReadMaximalShow(benchmark::State& state) {
  const std::string& bytes = maximal_show_bytes();
  Store store;
  for (auto _ : state) {
    reset_store(store);
    const LoadReport report = read_project(store, windows_1252_to_utf8(bytes));
    benchmark::DoNotOptimize(report.screens);
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes.size()));
}
BENCHMARK(BM_ReadMaximalShow)->Unit(benchmark::kMillisecond);

// The whole Load: read the file, decode, parse into the store.
void BM_LoadMaximalShowFromDisk(benchmark::State& state) {
  TempFolder folder;
  PosixFileSystem files;
  const std::string path = folder.file("maximal.xml");
  save_file_atomically(files, path, maximal_show_bytes());
  Store store;
  for (auto _ : state) {
    std::string bytes;
    files.read_file(path, 64u << 20, bytes);
    reset_store(store);
    const LoadReport report = read_project(store, windows_1252_to_utf8(bytes));
    benchmark::DoNotOptimize(report.screens);
  }
}
BENCHMARK(BM_LoadMaximalShowFromDisk)->Unit(benchmark::kMillisecond);

// A hostile file of blocks that open again before they close, of 256 kB to 8 MB
// (the largest file a load accepts): the time grows with the size, not its square.
void BM_ReadUnclosedBlocks(benchmark::State& state) {
  std::string text = "<Lumaris_XML>";
  while (text.size() < static_cast<std::size_t>(state.range(0))) text += "<Submix><Chase><Step>";
  text += "</Step></Chase></Submix></Lumaris_XML>";
  Store store;
  for (auto _ : state) {
    reset_store(store);
    const LoadReport report = read_project(store, text);
    benchmark::DoNotOptimize(report.submixes);
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_ReadUnclosedBlocks)->RangeMultiplier(4)->Range(256 << 10, 8 << 20)->Complexity()
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lumaris
