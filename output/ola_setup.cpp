#include "output/ola_setup.h"

#include <algorithm>

#include "core/desk_context.h"
#include "output/ola_output.h"
#include "platform/dialogs.h"

namespace lumaris {

namespace {
constexpr const char* kMessageTitle = " OLA Output";
constexpr std::uint64_t kMaxUniverse = 0xFFFFFFFFull;
}  // namespace

OlaSetup::OlaSetup(DeskContext& context, OlaOutput& output)
    : Window(kCaption), context_(context), output_(output) {
  refresh();
}

void OlaSetup::Form_Load() { refresh(); }

void OlaSetup::refresh() {
  universe_ = std::to_string(output_.universe());
  caption_ = output_.enabled() ? "Disable" : "Enable";
  colour_ = output_.enabled() ? kGreen : kRed;
}

void OlaSetup::complain(const std::string& text) {
  context_.dialogs().message(
      {kMessageTitle, text, MessageIcon::Exclamation, MessageButtons::Ok, MessageResult::Ok});
}

void OlaSetup::Universe_Set_Click() {
  const auto first = universe_.find_first_not_of(" \t");
  const std::string text =
      first == std::string::npos ? "" : universe_.substr(first, universe_.find_last_not_of(" \t") - first + 1);
  const bool digits = !text.empty() && text.size() <= 10 &&
                      std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
  if (!digits || std::stoull(text) > kMaxUniverse) {
    complain("Not an OLA universe: \"" + text + "\". Type a number from 0 to 4294967295, as olad "
             "numbers its universes.");
  } else {
    output_.set_universe(static_cast<std::uint32_t>(std::stoull(text)));
  }
  refresh();
}

void OlaSetup::Enable_Click() {
  if (const auto error = output_.set_enabled(!output_.enabled())) complain(*error);
  refresh();
}

std::string OlaSetup::Status() const { return output_.status(); }

}  // namespace lumaris
