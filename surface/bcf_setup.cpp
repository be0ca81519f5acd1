#include "surface/bcf_setup.h"

#include "core/desk_context.h"
#include "core/window_opener.h"
#include "surface/bcf.h"

namespace lumaris {

namespace {
constexpr const char* kCaption = "BCF Setup";
}  // namespace

BcfSetup::BcfSetup(DeskContext& context, BCF& surface)
    : Window(kCaption), context_(context), surface_(surface) {
  surface_.set_setup_window(*this);
}

void BcfSetup::Form_Load() { surface_.Form_Load(); }

void BcfSetup::Command1_Click() { surface_.BCF_Connect(); }

void BcfSetup::Command2_Click() { context_.windows().open("bcf2000"); }

void BcfSetup::Command3_Click() { Hide(); }

}  // namespace lumaris
