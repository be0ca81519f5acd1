#include "core/patch_editor.h"

#include "core/console.h"

namespace lumaris {

EditPatchList::EditPatchList(Console& console) : Window("Edit patchlist "), console_(console) {}

void EditPatchList::Form_Load() {}

}  // namespace lumaris
