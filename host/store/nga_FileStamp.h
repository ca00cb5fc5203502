#pragma once

#include <string>

namespace nga {

/// The state of a file at one moment, by which a later change of it is noticed.
struct FileStamp {
    bool exists = false;
    unsigned long long device = 0;
    unsigned long long inode = 0;
    long long size = 0;
    long long modified = 0;  ///< nanoseconds

    /// Of the file that the path leads to; a file that is not there has a stamp too.
    static FileStamp Of(std::string const& path);
    /// Of an open file, by its descriptor.
    static FileStamp OfOpen(int file);

    friend bool operator==(FileStamp const&, FileStamp const&) = default;
};

}  // namespace nga
