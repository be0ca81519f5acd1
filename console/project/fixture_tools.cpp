#include "console/project/fixture_tools.h"

#include <memory>

#include "core/store.h"
#include "fixtures/fixture_files.h"
#include "fixtures/fxt_file.h"
#include "platform/atomic_save.h"
#include "platform/posix_file_system.h"

namespace lumaris {

namespace {

constexpr int kClean = 0;
constexpr int kDamaged = 1;
constexpr int kNotAFixtureFile = 2;

struct LoadedFixtures {
  std::unique_ptr<FixtureTable> table = std::make_unique<FixtureTable>();
  FxtRead read;
};

// Reads into a fresh desk's fixture table, a single file into fixture 0.
bool load(const std::string& path, LoadedFixtures& loaded, std::ostream& err) {
  PosixFileSystem files;
  std::string bytes;
  const FileStatus read = files.read_file(path, kLargestFxt, bytes);
  if (!read.ok) {
    err << "lumaris: cannot read " << path << ": " << read.reason << "\n";
    return false;
  }
  loaded.read = read_fxt(*loaded.table, bytes, 0);
  if (loaded.read.outcome == FxtRead::Outcome::NotAFixtureFile) {
    err << "lumaris: " << path << ": " << FixtureFiles::kWrongMagic << "\n";
    return false;
  }
  return true;
}

void print_damage(const FxtRead& read, std::ostream& out) {
  out << "Damaged at line " << read.line << ": " << read.reason << "\n";
  out << "Nothing is loaded from a damaged fixture file\n";
}

int count_named(const FixtureTable& t, int f) {
  int named = 0;
  for (int k = 0; k < kFixtureButtonFunctions; ++k) {
    for (int j = 0; j < kFixtureButtons; ++j) named += t.Fixture_Button[f][k][j].empty() ? 0 : 1;
  }
  return named;
}

}  // namespace

int run_fixture_check(const std::string& path, std::ostream& out, std::ostream& err) {
  LoadedFixtures loaded;
  if (!load(path, loaded, err)) return kNotAFixtureFile;
  out << "Fixture file: " << path << "\n";
  out << "Kind: " << (loaded.read.kind == FxtKind::Single ? kFxtSingle : kFxtAll) << "\n";
  if (loaded.read.byte_order_mark) {
    out << "Note: the UTF-8 byte-order mark in front was skipped; a resave leaves it out\n";
  }
  if (loaded.read.end_of_file_mark) {
    out << "Note: the Ctrl-Z at the end was skipped; a resave leaves it out\n";
  }
  if (!loaded.read.loaded()) {
    print_damage(loaded.read, out);
    return kDamaged;
  }
  const FixtureTable& t = *loaded.table;
  const int blocks = loaded.read.kind == FxtKind::Single ? 1 : kFxtStoredFixtures;
  for (int f = 0; f < blocks; ++f) {
    if (t.Fixture_Name[f].empty() && count_named(t, f) == 0) continue;
    out << "Fixture " << f + 1 << ": " << t.Fixture_Name[f] << " (functions";
    for (const std::string& name : t.Fixture_Function[f]) out << " [" << name << "]";
    out << ", named buttons " << count_named(t, f) << ")\n";
  }
  return kClean;
}

int run_fixture_resave(const std::string& in, const std::string& out_path, std::ostream& out,
                       std::ostream& err) {
  LoadedFixtures loaded;
  if (!load(in, loaded, err)) return kNotAFixtureFile;
  if (!loaded.read.loaded()) {
    print_damage(loaded.read, out);
    out << "Nothing written\n";
    return kDamaged;
  }
  PosixFileSystem files;
  const FileStatus saved =
      save_file_atomically(files, out_path, fxt_bytes(*loaded.table, loaded.read.kind, 0));
  if (!saved.ok) {
    err << "lumaris: cannot write " << out_path << ": " << saved.reason << "\n";
    return kNotAFixtureFile;
  }
  out << "Saved " << out_path << " (" << (loaded.read.kind == FxtKind::Single ? kFxtSingle : kFxtAll)
      << ")\n";
  return kClean;
}

}  // namespace lumaris
