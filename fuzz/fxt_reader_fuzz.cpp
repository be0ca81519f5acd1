// Any bytes as a fixture file: the read never reaches outside the table, either
// loads whole or leaves the table exactly as it was, and what it loaded saves back
// to a file that reads again to the same table.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>

#include "core/store.h"
#include "fixtures/fxt_file.h"

namespace {

void require(bool condition) {
  if (!condition) std::abort();
}

bool same(const lumaris::FixtureTable& a, const lumaris::FixtureTable& b) {
  return a.Fixture_Name == b.Fixture_Name && a.Fixture_Function == b.Fixture_Function &&
         a.Fixture_Button == b.Fixture_Button && a.Fixture_Min == b.Fixture_Min &&
         a.Fixture_Max == b.Fixture_Max && a.Fixture_Colour == b.Fixture_Colour;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace lumaris;
  static const auto table = std::make_unique<FixtureTable>();
  static const auto before = std::make_unique<FixtureTable>();
  static const auto again = std::make_unique<FixtureTable>();
  *table = FixtureTable{};
  table->Fixture_Name[20] = "kept";
  *before = *table;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const int fixture = size > 0 ? data[0] % kFixtures : 0;
  const FxtRead read = read_fxt(*table, bytes, fixture);
  require(table->Fixture_Name[20] == "kept" || (read.loaded() && read.kind == FxtKind::Single));
  if (!read.loaded()) {
    require(same(*table, *before));
    return 0;
  }
  const std::string saved = fxt_bytes(*table, read.kind, fixture);
  *again = *before;
  require(read_fxt(*again, saved, fixture).loaded());
  require(fxt_bytes(*again, read.kind, fixture) == saved);
  return 0;
}
