#pragma once

class QApplication;

namespace lumaris {

// Fusion with a dark, low-glare palette for a dark stage; named indicator and
// channel colours are painted exactly as the desk names them.
void apply_stage_palette(QApplication& app);

}  // namespace lumaris
