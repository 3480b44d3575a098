#include "gui/cli/CommandLine.h"

int main(int argc, char** argv)
{
    return purrlodge::runCommandLine(argc, argv);
}
