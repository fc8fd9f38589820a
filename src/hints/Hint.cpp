#include "hints/Hint.h"

#include <QCoreApplication>

#include "hints/HintLists.h"

namespace hints {

namespace {

// Several arguments at once, so that a "%1" in an argument stays.
QString filled(QString words, const std::vector<std::string>& arguments)
{
    QString text;
    for (int at = 0; at < words.size(); ++at) {
        const int index =
            at + 1 < words.size() && words[at] == '%' ? words[at + 1].digitValue() : 0;
        if (index < 1 || index > static_cast<int>(arguments.size())) {
            text += words[at];
            continue;
        }
        text += QString::fromStdString(arguments[static_cast<std::size_t>(index) - 1]);
        ++at;
    }
    return text;
}

// What every finding on a page says first.
std::vector<std::string> placeArguments(const Diagnostic& place)
{
    if (place.page == 0) {
        return {};
    }
    const std::string page = std::to_string(place.page);
    return place.area == 0 ? std::vector<std::string>{page}
                           : std::vector<std::string>{place.subject, page};
}

}  // namespace

Finding& Report::add(const Diagnostic& place, const std::vector<std::string>& arguments)
{
    return add(hint->words, place, arguments);
}

Finding& Report::add(const char* words, const Diagnostic& place,
                     const std::vector<std::string>& arguments)
{
    Finding finding;
    finding.hint = hint;
    finding.words = words;
    finding.arguments = placeArguments(place);
    finding.arguments.insert(finding.arguments.end(), arguments.begin(), arguments.end());
    finding.diagnostic = place;
    finding.diagnostic.severity = Severity::hint;
    finding.diagnostic.kind = hint->name;
    finding.diagnostic.text = filled(words, finding.arguments).toStdString();
    findings.push_back(std::move(finding));
    return findings.back();
}

const std::vector<Hint>& allHints()
{
    static const std::vector<Hint> all = [] {
        std::vector<Hint> joined;
        for (const auto& list :
             {sayHints(), expressionHints(), nameHints(), flowHints(), areaNameHints(),
              areaNumberHints(), areaShapeHints(), areaSubHints(), productHints(), pageHints()}) {
            joined.insert(joined.end(), list.begin(), list.end());
        }
        return joined;
    }();
    return all;
}

std::string translatedWords(const Finding& finding)
{
    return filled(QCoreApplication::translate("Hints", finding.words), finding.arguments)
        .toStdString();
}

std::string translatedFix(const Finding& finding)
{
    return QCoreApplication::translate("Hints", finding.fix->words).toStdString();
}

}  // namespace hints
