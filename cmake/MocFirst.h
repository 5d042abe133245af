// The moc of Qt 6.4 can't read <compare> before <cstddef>.
#include <cstddef>
