#include "pdf/PageList.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace {

constexpr int kLastPage = 9999;

std::optional<int> pageIn(const QString& text)
{
    for (const QChar letter : text) {
        if (letter < '0' || letter > '9') {
            return std::nullopt;
        }
    }
    bool isNumber = false;
    const int page = text.toInt(&isNumber);
    return isNumber && page <= kLastPage ? std::optional<int>(page) : std::nullopt;
}

}  // namespace

std::vector<int> pagesIn(const std::string& text)
{
    std::vector<int> pages;
    for (const QString& part : QString::fromStdString(text).split(',')) {
        const int dash = part.indexOf('-');
        const auto first = pageIn(dash < 0 ? part : part.left(dash));
        const auto last = dash < 0 ? first : pageIn(part.mid(dash + 1));
        if (!first || !last || *last < *first) {
            return {};
        }
        for (int page = *first; page <= *last; ++page) {
            pages.push_back(page);
        }
    }
    return pages;
}
