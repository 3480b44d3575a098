#pragma once

namespace purrlodge {

// purrlodge-cli: reads the arguments, runs the job and returns its exit
// code. Results go to standard output, warnings and (with --verbose)
// progress to standard error, and a failure ends with one line there. No
// window is ever shown; a job that prints does so offscreen.
int runCommandLine(int argc, char** argv);

} // namespace purrlodge
