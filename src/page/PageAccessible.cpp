#include "page/PageAccessible.h"

#include "page/PolyEditorWidget.h"

#include <QCoreApplication>
#include <QPolygon>

#include <algorithm>

namespace {

class AreaAccessible : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    AreaAccessible(PolyEditorWidget& ofPage, AreaId told) : page(ofPage), area(told) {}

    // The area may be gone, or the page may be another one.
    bool isValid() const override { return index() >= 0; }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override
    {
        return QAccessible::queryAccessibleInterface(&page);
    }
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }

    QString text(QAccessible::Text what) const override
    {
        if (!isValid()) {
            return {};
        }
        switch (what) {
        case QAccessible::Name:
            return page.areaName(index());
        case QAccessible::Description:
            return description();
        default:
            return {};
        }
    }
    void setText(QAccessible::Text /*what*/, const QString& /*text*/) override {}

    QRect rect() const override
    {
        const QRect place = outline().boundingRect();
        return {page.mapToGlobal(place.topLeft()), place.size()};
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        const std::vector<AreaId> areas = document().selectedAreas();
        state.selectable = state.multiSelectable = state.focusable = true;
        state.selected = std::find(areas.begin(), areas.end(), area) != areas.end();
        state.focused = page.hasFocus() && document().selectedArea() == area;
        state.offscreen = !page.seen().intersects(outline().boundingRect());
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }

    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override
    {
        if (name == pressAction() && isValid()) {
            document().select(document().currentPage(), index());
        }
    }
    QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

private:
    Document& document() const { return *page.shownDocument(); }
    int index() const
    {
        const Contents::Place place = document().placeOf(area);
        return place.page == document().currentPage() ? place.index : -1;
    }
    const Oid::POLY& shape() const
    {
        return page.picture()->polys[static_cast<std::size_t>(index())];
    }
    QPolygon outline() const
    {
        QPolygon pixels;
        for (std::size_t i = 0; isValid() && i < shape().points.size(); ++i) {
            pixels << page.toPix(shape().points[i]);
        }
        return pixels;
    }
    QString description() const
    {
        const auto number = document().project().oids.find(shape().name);
        const int oid = number != document().project().oids.end() ? number->second.oid : 0;
        QString text = QCoreApplication::translate("PageAccessible", "number %1, area %2 of %3")
                           .arg(oid)
                           .arg(index() + 1)
                           .arg(page.picture()->polys.size());
        if (!shape().points.empty()) {
            const Oid::PNT corner = page.toProz(outline().boundingRect().topLeft());
            text += ", " + QCoreApplication::translate("PageAccessible",
                                                       "%1 % from the left, %2 % from the top")
                               .arg(qRound(corner.x))
                               .arg(qRound(corner.y));
        }
        return text;
    }

    PolyEditorWidget& page;
    const AreaId area;
};

QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    if (className != "PolyEditorWidget") {
        return nullptr;
    }
    auto* const page = qobject_cast<PolyEditorWidget*>(object);
    return page != nullptr ? new PageAccessible(page) : nullptr;
}

}  // namespace

void PageAccessible::install()
{
    static const bool once = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    Q_UNUSED(once);
}

PageAccessible::PageAccessible(PolyEditorWidget* shown)
    : QAccessibleWidget(shown, QAccessible::List)
{}

PageAccessible::~PageAccessible()
{
    for (const auto& entry : children) {
        QAccessible::deleteAccessibleInterface(entry.second);
    }
}

PolyEditorWidget& PageAccessible::page() const
{
    return *static_cast<PolyEditorWidget*>(widget());
}

int PageAccessible::childCount() const
{
    const Oid::PICTURE* const picture = page().picture();
    return picture != nullptr ? static_cast<int>(picture->polys.size()) : 0;
}

QAccessibleInterface* PageAccessible::child(int index) const
{
    if (index < 0 || index >= childCount()) {
        return nullptr;
    }
    const Document& document = *page().shownDocument();
    const AreaId area = document.areaAt(document.currentPage(), index);
    const auto [entry, isNew] = children.try_emplace(area, 0);
    if (isNew) {
        entry->second = QAccessible::registerAccessibleInterface(new AreaAccessible(page(), area));
    }
    return QAccessible::accessibleInterface(entry->second);
}

int PageAccessible::indexOfChild(const QAccessibleInterface* wanted) const
{
    for (const auto& [area, id] : children) {
        if (QAccessible::accessibleInterface(id) == wanted) {
            const Document& document = *page().shownDocument();
            const Contents::Place place = document.placeOf(area);
            return place.page == document.currentPage() ? place.index : -1;
        }
    }
    return -1;
}

// The one that a click there selects.
QAccessibleInterface* PageAccessible::childAt(int x, int y) const
{
    const std::vector<int> here = page().areasAt(page().toProz(page().mapFromGlobal({x, y})));
    return here.empty() ? nullptr : child(here.front());
}

QAccessibleInterface* PageAccessible::focusChild() const
{
    return page().hasFocus() ? child(page().selectedPoly()) : nullptr;
}

std::vector<PageAccessible::News> PageAccessible::newsOf(PolyEditorWidget& page,
                                                         const Change& change)
{
    QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(&page);
    QAccessibleInterface* const area = told->child(page.selectedPoly());
    std::vector<News> news;
    if (change.has(Change::areas) || change.has(Change::pages)) {
        news.push_back({told, QAccessible::ObjectReorder});
    }
    if (change.has(Change::selection)) {
        news.push_back({area != nullptr ? area : told, QAccessible::Selection});
    }
    if (change.has(Change::selection) && area != nullptr && page.hasFocus()) {
        news.push_back({area, QAccessible::Focus});
    }
    if (change.has(Change::names) && area != nullptr) {
        news.push_back({area, QAccessible::NameChanged});
    }
    if (change.has(Change::corners) && area != nullptr) {
        news.push_back({area, QAccessible::LocationChanged});
    }
    return news;
}

void PageAccessible::announce(PolyEditorWidget& page, const Change& change)
{
    if (!QAccessible::isActive()) {
        return;
    }
    for (const News& one : newsOf(page, change)) {
        QAccessibleEvent event(one.of, one.what);
        QAccessible::updateAccessibility(&event);
    }
}
