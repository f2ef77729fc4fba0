#include "platform/report/FindText.h"

namespace report {

namespace {

std::optional<TextPlace> placeOf(const QString& text, int page, qsizetype start) {
    if (start < 0) return std::nullopt;
    return TextPlace{page, start, text.size()};
}

std::optional<TextPlace> findForwards(Paginator& pages, const QString& text, const TextPlace& from) {
    for (int index = from.page; const Page* page = pages.page(index); ++index) {
        const qsizetype start = index == from.page ? from.start + 1 : 0;
        if (auto found = placeOf(text, index, page->text.indexOf(text, start, Qt::CaseInsensitive))) return found;
    }
    for (int index = 0; index <= from.page; ++index) {
        const Page* page = pages.page(index);
        if (!page) break;
        if (auto found = placeOf(text, index, page->text.indexOf(text, 0, Qt::CaseInsensitive))) return found;
    }
    return std::nullopt;
}

std::optional<TextPlace> findBackwards(Paginator& pages, const QString& text, const TextPlace& from) {
    const auto before = [&](int index, qsizetype end) -> std::optional<TextPlace> {
        const Page* page = pages.page(index);
        if (!page || end < 0) return std::nullopt;
        return placeOf(text, index, page->text.lastIndexOf(text, end, Qt::CaseInsensitive));
    };
    if (auto found = before(from.page, from.start - 1)) return found;
    for (int index = from.page - 1; index >= 0; --index)
        if (auto found = before(index, pages.page(index)->text.size())) return found;
    pages.layOutAll();
    for (int index = pages.pageCount() - 1; index >= from.page; --index)
        if (auto found = before(index, pages.page(index)->text.size())) return found;
    return std::nullopt;
}

}  // namespace

std::optional<TextPlace> findText(Paginator& pages, const QString& text, const TextPlace& from, bool backwards) {
    if (text.isEmpty()) return std::nullopt;
    return backwards ? findBackwards(pages, text, from) : findForwards(pages, text, from);
}

}  // namespace report
