#pragma once

namespace cirrava {

// The numbers by which a failed file or dialog action is reported to the user.
enum class FailureNumber : int {
    bad_file_name = 52,  // empty, too long, or with characters that no name may have
    file_not_found = 53, // the folder is there, the file is not
    device_error = 57,   // an input or output error, and everything not foreseen here
    disk_full = 61,      // also a quota or a file-size limit
    past_end = 62,       // a file ends before what must be in it
    too_many_files = 67, // no further file can be opened
    not_ready = 71,      // a drive without a medium, a busy device
    path_access = 75,    // permission, read-only, or not a regular file
    path_not_found = 76, // a folder on the way is missing
    not_a_picture = 481, // an image file that cannot be shown
    cancelled = 32755    // the user left a file or colour dialog without a choice
};

// What a failing file or dialog operation throws. The action of the user that began it catches it
// and tells its number, or says in a comment why not.
struct Failure {
    FailureNumber number;
};

} // namespace cirrava
