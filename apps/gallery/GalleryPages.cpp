#include "GalleryPages.h"

#include <algorithm>

namespace gallery {

namespace {
std::vector<Page>& Pages()
{
    static std::vector<Page> pages;
    return pages;
}
} // namespace

bool RegisterPage(Page page)
{
    Pages().push_back(std::move(page));
    return true;
}

std::vector<Page> AllPages()
{
    auto pages = Pages();
    std::stable_sort(pages.begin(), pages.end(),
                     [](const Page& a, const Page& b) { return a.Order < b.Order; });
    return pages;
}

} // namespace gallery
