#pragma once

#include "common/text/Text.h"

#include <functional>

namespace korvane {

class App;
class DiskWait;
class DropDown;
class FileRows;
class FolderTree;
class TextBox;

/// The folder that the lister shows. The line with its path, the tree and the list of files follow one
/// another here.
class ShownFolder {
public:
    struct Parts {
        TextBox& path;
        DropDown& pattern;
        FolderTree& tree;
        FileRows& rows;
        DiskWait& wait;
    };
    /// All outlive the object.
    ShownFolder(App& app, Parts parts);

    const Text& Path() const;
    /// The path of a file in the folder; a path that is one already stays.
    Text PathOf(TextView name) const;
    /// Whether the list shows the files of the folder. It doesn't after the user went on in the tree by keys
    /// alone.
    bool IsListed() const;

    /// Makes the folder the current directory, in which the windows for files work. False, with a box, when
    /// it has gone: they would take files of the same names in another folder.
    bool Enter() const;

    /// Takes the folder into the line alone.
    void TakePath(const Text& folder);
    /// Goes to a folder with the tree, and lists its files again.
    void GoTo(const Text& folder);
    /// The tree is on the way there: what it tells isn't what the user does.
    bool IsGoing() const { return going_; }
    /// Whether they are being read just now.
    bool IsListing() const { return listing_; }
    /// Whether the user has stopped the wait for it. It is read again only on request.
    bool IsGivenUp() const { return GivenUpPath_ == Path(); }
    /// Lists the files of the folder unless they are listed.
    void List();
    /// Lists them again, whatever is listed.
    void ListAgain();
    /// Sorts by a column, as a click on its header asks; a second click turns the order round.
    void SortBy(int column);

    /// The files are about to be read.
    std::function<void()> Listing;

private:
    void NoteAnswer(const Text& folder);

    App& app_;
    Parts parts_;
    /// Empty when the files are to be read again in any case.
    Text LastListedPath_;
    /// Empty when the disk has answered.
    Text GivenUpPath_;
    bool listing_ = false;
    bool going_ = false;
};

} // namespace korvane
