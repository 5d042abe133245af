#include "app/Application.h"
#include "app/CommandLine.h"
#include "app/Program.h"
#include "platform/memory/MemoryInstanceChannel.h"
#include "platform/qt/Palettes.h"
#include "platform/qt/instance/LocalSocketChannel.h"

int main(int argc, char** argv) {
    using namespace korvane;
    Application application(argc, argv);
    const CommandLine line = ReadCommandLine(Application::arguments());
    if (!line.picture.isEmpty()) {
        if (line.dark) Application::setPalette(DarkPalette());
        // A picture is taken beside whatever runs.
        MemoryInstanceChannel nobody;
        return Program(nobody).Render(line.path, line.picture);
    }
    FollowDesktopPalette();
    LocalSocketChannel channel(FindInstancePlace(OwnInstanceSurroundings()));
    return Program(channel).Run(line.path);
}
