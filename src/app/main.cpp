#include "app/Start.h"

int main(int argc, char** argv) {
    return korvane::Start(argc, argv);
}
