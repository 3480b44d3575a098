#pragma once

#include "app/Clock.h"
#include "app/Drives.h"
#include "app/Printer.h"
#include "app/Profile.h"
#include "app/Random.h"
#include "app/Ui.h"

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
