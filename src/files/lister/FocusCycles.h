#pragma once

#include <functional>

namespace korvane {

class Control;

/// The two cycles by which keys lead through the parts of the window.
class FocusCycles {
public:
    struct Parts {
        Control& pattern;
        Control& name;
        Control& tree;
        /// Go to the list, to its current row. The first writes the row's name into the line of the name.
        std::function<void()> toListWithName;
        std::function<void()> toList;
    };
    /// The controls outlive the object.
    explicit FocusCycles(Parts parts);

    /// Between the box of patterns and the list.
    void StepA();
    /// From the list over the line of the name to the tree.
    void StepB();

private:
    Parts parts_;
    // Where the last step led to; 0 before the first and after the last one of a cycle.
    int stateA_ = 0;
    int stateB_ = 0;
};

} // namespace korvane
