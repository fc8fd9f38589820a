// The areas of the current picture: drawing, picking, naming, numbering, and the way to their code.
#include "app/MainWindow.h"

#include "app/AreaTools.h"
#include "app/StorableName.h"
#include "document/SelectedAreas.h"
#include "ui_MainWindow.h"

#include <QScopedValueRollback>

const Oid::POLY* MainWindow::selectedArea() const
{
    if (document.selectedArea() == AreaId::none) {
        return nullptr;
    }
    return &ui->polyArea->picture()->polys[static_cast<size_t>(document.selectedIndex())];
}

void MainWindow::selectPolygon(int i)
{
    const int page = document.currentPage();
    document.endGesture();
    if (ui->polyArea->picture() != nullptr) {
        document.select(page, document.areaAt(page, i) != AreaId::none ? i : -1);
    }
    showSelectedArea();
    ui->polyArea->paintChanges();
}

void MainWindow::showSelectedArea()
{
    const Oid::POLY* const area = selectedArea();
    if (area == nullptr) {
        return;
    }
    const QScopedValueRollback<bool> filling(fillingFields, true);
    const QString name = StorableName::of(QString::fromStdString(area->name));
    if (ui->txPolyName->text() != name) {
        ui->txPolyName->setText(name);
    }
    ui->txOidOfArea->setValue(document.numberOf(document.selectedArea()));
}

void MainWindow::onPolyAreaClickedLB(Oid::PNT pt)
{
    if (ui->polyArea->isClick()) {
        areaTools->current().click(pt);
    }
    showSelectedArea();
    ui->polyArea->paintChanges();
}

void MainWindow::on_btPickPoly_clicked()
{
    areaTools->pick();
    selectPolygon(-1);
}

void MainWindow::on_btAddPoly_clicked()
{
    const int added = areaTools->draw();
    if (added >= 0) {
        selectPolygon(added);
    }
}

void MainWindow::on_btDelPoly_clicked()
{
    if (document.selectedAreas().size() > 1) {
        removeSelectedAreas(document);
        areaTools->pick();
        return;
    }
    if (!document.apply(edit::RemoveArea{document.selectedArea()})) {
        return;
    }
    areaTools->pick();
    selectPolygon(document.selectedIndex() - 1);
}

// Intended: all reaction to the name stands in on_txPolyName_textChanged.
void MainWindow::on_txPolyName_textEdited(const QString& /*arg1*/) {}

void MainWindow::on_txPolyName_textChanged(const QString& arg1)
{
    if (!fillingFields) {
        document.apply(edit::RenameArea{document.selectedArea(), arg1.toStdString()}, typedName);
    }
}

void MainWindow::on_txOidOfArea_valueChanged(int arg1)
{
    if (fillingFields) {
        return;
    }
    if (document.selectedArea() == AreaId::none) {
        tell(tr("No area is selected, so this numbers none. Click one, then type its number."));
        return;
    }
    document.apply(edit::SetNumber{document.selectedArea(), arg1}, typedNumber);
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
