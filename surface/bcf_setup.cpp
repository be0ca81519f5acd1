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

void BcfSetup::connect_clicked() { surface_.BCF_Connect(); }

void BcfSetup::control_clicked() { context_.windows().open("bcf2000"); }

void BcfSetup::close_clicked() { Hide(); }

}  // namespace lumaris
