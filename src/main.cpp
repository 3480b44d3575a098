#include "gui/app/TApp.h"

int main(int argc, char** argv)
{
    purrlodge::TApp app(argc, argv);
    return app.run();
}
