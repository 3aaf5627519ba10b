#include "cdu/pages/stored_files.h"

namespace {

constexpr int kFilesPerPage = 6;

int FirstFile(int page) {
    return (page - 1) * kFilesPerPage;
}

}  // namespace

const std::string* PickStoredFile(PageCall& call, int& page, const GrowingList<std::string>& files,
                                  int count) {
    TurnPages(call, page, StoredFilePages(count));
    const int row = LeftLine(call.line), place = FirstFile(page) + row;
    return row > 0 && place <= count ? &files[place] : nullptr;
}

void DrawStoredFiles(PageCall& call, int page, const GrowingList<std::string>& files, int count) {
    for (int row = 1; row <= kFilesPerPage && FirstFile(page) + row <= count; ++row) {
        LeftData(call, row, "< " + files[FirstFile(page) + row]);
        MarkSelectable(call, kL1 + row - 1);
    }
}

int StoredFilePages(int count) {
    return PagesFor(count, kFilesPerPage);
}
