#include "surface/bcf_configure.h"

#include "core/desk_context.h"
#include "core/window_opener.h"
#include "surface/bcf.h"

namespace lumaris {

namespace {
constexpr const char* kCaption = "BCF Setup";
}  // namespace

BCF_configure::BCF_configure(DeskContext& context, BCF& surface)
    : Window(kCaption), context_(context), surface_(surface) {
  surface_.set_setup_window(*this);
}

void BCF_configure::Form_Load() { surface_.Form_Load(); }

void BCF_configure::Command1_Click() { surface_.BCF_Connect(); }

void BCF_configure::Command2_Click() { context_.windows().open("BCF"); }

void BCF_configure::Command3_Click() { Hide(); }

}  // namespace lumaris
