#include "efb/pages/pages.h"

#include "state/efb.h"

void OpenTabletPage(int page) {
    efb.EfbPage = page;
    efb.EfbOpenList = 0;
    efb.EfbEditField = 0;
    efb.EfbScratch.clear();
}

void OpenPageOfNumber(int, int page) {
    OpenTabletPage(page);
}

void ReturnToPage(int, int) {
    OpenTabletPage(efb.EfbPrevPage);
}
