// Archive bytes unpacked by the extractor into a scratch folder. Inputs with
// links are skipped: the extractor keeps them inside its destination (the
// extractor tests prove how), but the fuzzer runs on a real machine, where a
// fault there would write anywhere.
#include <archive.h>
#include <archive_entry.h>
#include <signal.h>
#include <sys/resource.h>

#include <memory>

#include "extractor.h"
#include "fuzz-support.h"
#include "log.h"
#include "strtable.h"

namespace {

bool HasLinks(const std::string& bytes)
{
    std::unique_ptr<archive, decltype(&archive_read_free)> reader(archive_read_new(), archive_read_free);
    archive_read_support_filter_all(reader.get());
    archive_read_support_format_all(reader.get());
    if (archive_read_open_memory(reader.get(), bytes.data(), bytes.size()) != ARCHIVE_OK)
        return false;
    archive_entry* entry = nullptr;
    while (archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK) {
        if (archive_entry_hardlink(entry) || archive_entry_filetype(entry) == AE_IFLNK)
            return true;
    }
    return false;
}

// Quiet, and a small bomb fails its writes instead of filling the disk.
bool SetUp()
{
    const rlimit file_size = {64 << 20, 64 << 20};
    StrTable::InitStrTable();
    return Logger::Initialize(Logger::TYPE_STDERR, "", WriteScratch("levels", "extractor_debug=0\n").c_str(),
                              0) == 0 &&
           signal(SIGXFSZ, SIG_IGN) != SIG_ERR && setrlimit(RLIMIT_FSIZE, &file_size) == 0;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const bool ready = SetUp();
    FUZZ_CHECK(ready);
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    if (HasLinks(bytes))
        return 0;
    Extractor extractor;
    extractor.archive_path = WriteScratch("package", bytes).c_str();
    extractor.dest_path = (ScratchFolder() + "/out").c_str();
    const int result = extractor.Extract();
    FUZZ_CHECK(result == 0 || result == -1);
    std::filesystem::remove_all(ScratchFolder() + "/out");
    return 0;
}
