#pragma once

#include "ports/Clock.h"
#include "ports/Drives.h"
#include "ports/Printer.h"
#include "ports/Profile.h"
#include "ports/Random.h"
#include "ports/Ui.h"

namespace purrlodge {

// Everything outside the core that the core talks to.
struct Ports {
    Ui& ui;
    Clock& clock;
    Random& random;
    Profile& profile;
    Drives& drives;
    Printer& printer;
};

} // namespace purrlodge
