#pragma once

#include "base/KVString.h"

#include <QObject>
#include <QStringList>

class QAbstractItemModel;
class QComboBox;
class QRadioButton;
class QWidget;

// Binds variables to widgets in both directions: the same sequence of calls fills a form from the
// variables or reads the form back into them.
//
//   void Form::sync(KVQtSync::SyncMode mode)
//   {
//       KVQtSync sync(mode);
//       sync.syncS(name, ui->txName);
//       sync.syncD(width, ui->txWidth);
//   }
//
// An object lives for one pass over one form. Intended: one that is made while another is alive
// (in a change handler, for example) does nothing, so that a pass never starts another.
// Used from the user-interface thread only.
class KVQtSync : public QObject
{
    Q_OBJECT

public:
    enum SyncMode : qint32 {
        Inactive = -1,   // every call does nothing
        ToWidgets = 0,   // write the variables into the widgets
        FromWidgets = 1  // read the widgets into the variables
    };

    class TableSync;  // one row per record of a table: qtsync/TableSync.h

    explicit KVQtSync(SyncMode mode);
    explicit KVQtSync(bool fromWidgets);
    ~KVQtSync() override;

    // Inactive unless this is the only live object.
    void mode(SyncMode mode);
    void mode(bool fromWidgets) { mode(fromWidgets ? FromWidgets : ToWidgets); }
    SyncMode mode() const { return syncMode; }
    // Ends the pass before the object dies: from now on it does nothing and the next one may begin.
    void stop();

    // Set by every read that changes a variable; only the application clears it.
    static bool DocumentIsModified();
    static void DocumentIsModified(bool modified);

    // --- one widget ---

    // Spin boxes, text edits, line edits, combo boxes (their text) and check boxes ("1", "0").
    // Other widgets are left alone. Filling never makes a widget report a change.
    void syncS(KVString& text, QWidget* widget);
    void syncS(QString& text, QWidget* widget);
    // Combo box: the current index. Radio button: the number of the checked one among the radio
    // buttons of the same parent, counted along the focus chain from the given one, -1 for none.
    // Others: decimal text. What is no number reads as 0.
    void syncI(int& value, QWidget* widget);
    // Filling replaces the items, too.
    void syncI(int& value, QComboBox* box, const QStringList& itemTexts);
    void syncD(double& value, QWidget* widget);

    // --- one cell of an item model ---

    // A cell outside the model is left alone, and so is its variable. Numbers are aligned to the
    // right, and reading one also puts into the cell what was read. A boolean is the check state.
    void gridS(KVString& text, QAbstractItemModel* model, int row, int column);
    void gridS(QString& text, QAbstractItemModel* model, int row, int column);
    void gridI(int& value, QAbstractItemModel* model, int row, int column);
    void gridB(bool& value, QAbstractItemModel* model, int row, int column);
    void gridD(double& value, QAbstractItemModel* model, int row, int column);

    // Exactly n rows, by adding or removing at the end; at least n rows.
    void setTableRows(QAbstractItemModel* model, int n);
    void growTableRows(QAbstractItemModel* model, int n);
    // True when no column of the row shows a text.
    static bool _is_empty_row(const QAbstractItemModel* model, int row);

    // --- changes by the user ---

    // The one receiver of the process that hears of every edit in a widget or model that was filled
    // since; slot as SLOT() gives it. A receiver that dies is forgotten.
    static void connectChangeEventSlot(QObject* receiver, const char* slot);
    static void disconnectChangeEventSlot();
    // Connects a widget or item model, once. Filling does this by itself.
    static void connectChangeEvent(QObject* widget);

    // --- numbers as text, whatever the locale ---

    static QString _from_int(int value);
    // With 15 significant digits, as many as every double keeps of a decimal number.
    static QString _from_double(double value);
    // The whole text is a number, or the result is 0. Integers are cut behind the point and end at
    // the limits of int.
    static int _to_int(const QString& text);
    static double _to_double(const QString& text);

private:
    // Takes over what was read.
    template <typename T>
    static void _replace(T& variable, const T& value)
    {
        if (variable != value) {
            DocumentIsModified(true);
        }
        variable = value;
    }
    void _sync_combo_index(int& value, QComboBox* box);
    void _sync_radio_index(int& value, QRadioButton* first);
    // A number in a cell; fromText reads it out of the cell's text.
    template <typename Number>
    void _grid_number(Number& value, Number (*fromText)(const QString&), QAbstractItemModel* model,
                      int row, int column);

    bool active = true;
    SyncMode syncMode = Inactive;
};

// One value of one widget in one call. Each is a KVQtSync pass of its own, so while another pass is
// alive they do nothing (and give "" and 0), and a read counts as a change of the document when it
// gives something else than that.
namespace KVQt {

KVString getS(QWidget* widget);
double getD(QWidget* widget);
void setI(int value, QWidget* widget);
void setD(double value, QWidget* widget);

}  // namespace KVQt
