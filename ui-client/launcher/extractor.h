#ifndef EXTRACTOR_H
#define EXTRACTOR_H

#include "ustring.h"

struct archive;

// Unpacks an archive file into a folder, reporting progress to the dialog
// through Notify_Adapter. Strict: any library warning is a failure, and
// nothing is written outside the folder: entries whose path climbs out with
// "..", special files and links that lead out are refused (EntryGuard).
// Entry names are UTF-8 whatever the user's locale. Each call opens and
// frees its own library handles.
class Extractor {
public:
    // 0 when every entry was written, -1 otherwise (entries written before
    // the failure stay in dest_path).
    int Extract();
    // Number of entries readable before the end or the first bad header, or -1.
    int Count();
    // Prints every entry's path name on standard output; 0 or -1.
    int List();
    // Copies the current entry's data block by block; 0 or -1.
    int copy_data(archive* reader, archive* writer);

    ustring dest_path;  // must exist before Extract
    ustring archive_path;
};

#endif  // EXTRACTOR_H
