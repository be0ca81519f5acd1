#include "console/project/project_header_reader.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace lumaris::show_reading {

namespace {
// The ranges of the set-up controls that edit what the block holds.
constexpr int kLastAdapter = 5;      // the set-up list: None .. Oksidizer USB2DMX
constexpr int kLastSurfaceMode = 6;  // BCF2000: not connected .. User Config
}  // namespace

bool read_project_header(BlockFields& fields, Store& store, LoadReport& report) {
  std::string name = fields.text("Name");
  std::string date = fields.text("Date");
  const std::int16_t version = fields.number("Version");
  std::string project_text = fields.text("Text");
  // A number that names no adapter or surface mode leaves that output off.
  const std::int16_t adapter = fields.choice(fields.raw_number("Adapter"), kLastAdapter, 0, "Adapter");
  const std::int16_t bcf = fields.choice(fields.raw_number("BCF"), kLastSurfaceMode, 0, "BCF");
  std::vector<std::uint8_t> universes;
  fields.each("Network", [&](std::string_view network) {
    BlockFields row(network);
    const int universe =
        row.in_range(tag_number_value(row.content("Universe").value_or("")), 0, 255, "Universe");
    if (!row.ok()) fields.fail(row.problem());
    universes.push_back(static_cast<std::uint8_t>(universe));
  });
  if (universes.size() > store.Art_Universes.size()) {
    fields.fail(std::to_string(universes.size()) + " Network blocks, more than " +
                std::to_string(store.Art_Universes.size()) + " Art-Net rows");
  }
  if (!fields.ok()) return false;
  store.Project_Name = std::move(name);
  store.Project_Date = std::move(date);
  store.Project_Version = version;
  store.Project_Text = std::move(project_text);
  store.Adapter = adapter;
  for (std::size_t row = 0; row < universes.size(); ++row) {
    store.Art_Universes[row].Enable = true;
    store.Art_Universes[row].Universe = universes[row];
  }
  store.BCF_Mode = bcf;
  report.has_project = true;
  report.art_rows = static_cast<int>(universes.size());
  return true;
}

}  // namespace lumaris::show_reading
