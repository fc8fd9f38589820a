// The areas of the current picture: drawing, picking, naming, numbering, and the way to their code.
#include "app/MainWindow.h"

#include "app/StorableName.h"
#include "base/TextHelpers.h"
#include "oid/OidTable.h"
#include "ui_MainWindow.h"

#include <utility>

Oid::POLY* MainWindow::selectedArea() const
{
    Oid::PICTURE* const picture = ui->polyArea->picture();
    if (picture == nullptr || selectedPoly < 0 ||
        selectedPoly >= static_cast<int>(picture->polys.size())) {
        return nullptr;
    }
    return &picture->polys[static_cast<size_t>(selectedPoly)];
}

void MainWindow::selectPolygon(int i)
{
    const Oid::PICTURE* const picture = ui->polyArea->picture();
    if (picture == nullptr) {
        selectedPoly = -1;
        ui->polyArea->repaint();
        return;
    }
    const bool exists = i >= 0 && i < static_cast<int>(picture->polys.size());
    selectedPoly = exists ? i : -1;
    ui->polyArea->selectedPoly = selectedPoly;
    showSelectedArea();
    ui->polyArea->repaint();
}

void MainWindow::showSelectedArea()
{
    naming.finish();
    const Oid::POLY* const area = selectedArea();
    if (area == nullptr) {
        return;
    }
    // Setting the fields fires their handlers, which write the same values back.
    ui->txPolyName->setText(QString::fromStdString(area->name));
    const Oid::OidProject::OID entry = project.oids[area->name];
    ui->txOidOfArea->setValue(entry.oid);
    project.oids[area->name] = entry;  // it may be beyond the range of the field
}

void MainWindow::numberAllAreas()
{
    if (!Oid::numberAllAreas(project)) {
        return;
    }
    naming.finish();
    if (const Oid::POLY* const area = selectedArea()) {
        ui->txOidOfArea->setValue(project.oids[area->name].oid);
    }
}

void MainWindow::setMode(Mode newMode, Qt::CursorShape cursor)
{
    mode = newMode;
    ui->polyArea->setCursor(cursor);
}

void MainWindow::onPolyAreaClickedLB(Oid::PNT pt)
{
    Oid::PICTURE* const picture = ui->polyArea->picture();
    if (picture == nullptr) {
        return;
    }
    if (mode == pick) {
        selectPolygon(project.pntInPoly(ui->polyArea->currentPicture, pt));
    } else if (!picture->polys.empty()) {
        picture->polys.back().points.push_back(pt);
        ui->polyArea->repaint();
    }
}

void MainWindow::on_btPickPoly_clicked()
{
    setMode(pick, Qt::ArrowCursor);
    selectPolygon(-1);
}

void MainWindow::on_btAddPoly_clicked()
{
    Oid::PICTURE* const picture = ui->polyArea->picture();
    if (picture == nullptr) {
        return;
    }
    const int count = static_cast<int>(picture->polys.size());
    Oid::POLY area;
    area.name = "polygon" + itostr(count + 1);
    picture->polys.push_back(std::move(area));
    project.updateUsedOIDs();
    setMode(addPolygon, Qt::CrossCursor);
    selectPolygon(count);
}

void MainWindow::on_btDelPoly_clicked()
{
    if (selectedArea() == nullptr) {
        return;
    }
    // Intended: the name keeps its number, so that an area of the same name gets it back.
    std::vector<Oid::POLY>& areas = ui->polyArea->picture()->polys;
    areas.erase(areas.begin() + selectedPoly);
    setMode(pick, Qt::ArrowCursor);
    selectPolygon(selectedPoly - 1);
}

// Intended: all reaction to the name stands in on_txPolyName_textChanged.
void MainWindow::on_txPolyName_textEdited(const QString& /*arg1*/) {}

void MainWindow::on_txPolyName_textChanged(const QString& arg1)
{
    Oid::POLY* const area = selectedArea();
    // A name that was written by hand stays while it is only shown.
    if (area != nullptr && arg1 != StorableName::of(QString::fromStdString(area->name))) {
        naming.rename(*area, arg1.toStdString());
    }
}

void MainWindow::on_txOidOfArea_valueChanged(int arg1)
{
    if (const Oid::POLY* const area = selectedArea()) {
        project.oids[area->name] = Oid::tableEntry(arg1);
    }
}

// The caret before the code of an area; where there is none, the lines of an empty one are added at
// the end, and the caret stands behind them.
static KVTextEditor::CARET codeOfArea(KVTextEditor::EditorBackend<KVTextEditor::EdChar>& editor,
                                      const QString& name)
{
    const std::u16string declaration = u"sub " + name.toStdU16String();
    KVTextEditor::CARET caret;
    if (editor.find_next(declaration, caret)) {
        return caret;
    }
    auto& text = *editor.buffer;
    const int end = text.line_count();
    text.line(end).set(declaration.c_str(), -1);
    text.line(end + 1).set(u"endsub", -1);
    text.line(end + 2);
    return {end + 2, 0};
}

void MainWindow::on_btEditPolyCode_clicked()
{
    auto& editor = ui->codeEditor->editor();
    const Oid::POLY* const area = selectedArea();
    const QString name =
        area != nullptr ? QString::fromStdString(area->name) : ui->txPolyName->text();
    const KVTextEditor::CARET caret = codeOfArea(editor, name);
    editor.selection.set(caret.line, caret.column);
    ui->ribbonTab->setCurrentWidget(ui->tabScript);
    ui->codeEditor->EnsureVisible(caret);
    ui->codeEditor->UpdateAllViews();
    ui->codeEditor->setFocus();
}
