#pragma once

#include "editor/core/EditorBackend.h"
#include "editor/widget/EditorOptions.h"
#include "editor/widget/GlyphCache.h"
#include "editor/widget/LineMarks.h"

#include <QElapsedTimer>
#include <QRegion>
#include <QTimer>
#include <QWidget>

#include <array>
#include <optional>
#include <vector>

class KVQtFindDialog;
class QAbstractScrollArea;
class QMimeData;
class SearchNote;
struct TextView;

// The surface of the code editor: it draws a grid of cells with line numbers in front, and turns
// keys and mouse gestures into calls of the editing logic. It owns the text. Each command ends with
// UpdateAllViews.
class KVQtHighlightEditCtrlInlay : public QWidget
{
    Q_OBJECT

public:
    using CARET = KVTextEditor::CARET;
    using SELECTION = KVTextEditor::SELECTION;
    using BUFFER = KVTextEditor::Buffer<KVTextEditor::EdChar>;
    using BACKEND = KVTextEditor::EditorBackend<KVTextEditor::EdChar>;

    // The scroll area shows the surface in its viewport, and its scroll bars scroll the text.
    explicit KVQtHighlightEditCtrlInlay(QAbstractScrollArea* scrollArea);
    ~KVQtHighlightEditCtrlInlay() override;

    BUFFER buffer;
    BACKEND editor;
    EditorOptions options;
    // Replace All stops when the text is longer than this many characters (1 GB).
    std::size_t replace_all_limit = std::size_t(1) << 29;

    // The whole text, its lines joined with CR LF; between two commands all who ask share one copy.
    // Setting it ends undo and redo.
    QString text() const;
    void setText(const QString& text);
    // True when the text is the one that setText would leave, whatever its line ends.
    bool holds(const QString& text) const;
    void forgetHistory();  // ends undo and redo; text, bookmarks and caret stay

    void SetFont(const QString& family, int pointSize);
    // The size of the letters, in points; SetLetterSize keeps it within these bounds.
    static constexpr int kUsualLetterSize = 11;
    static constexpr int kSmallestLetterSize = 6;
    static constexpr int kLargestLetterSize = 72;
    int letter_size() const;
    void SetLetterSize(int points);

    // --- the view (InlayView.cpp) ---
    // Colours what has changed and repaints; ends every command.
    void UpdateAllViews();
    // Scrolls until the cell is in view, to the middle of the height when centre is set and it was
    // out of view.
    void EnsureVisible(CARET caret, bool centre = false);
    void ScrollBy(int columns, int lines);
    QSize GetVisibleSize() const;  // whole columns and lines
    // The cell at a point of the viewport: snapped to the text, or with free only to its lines.
    CARET FromPoint(QPoint point, bool free = false) const;
    // Where a cell is drawn in the viewport; empty when it is out of view.
    QRect CellRectangle(CARET caret) const;
    int first_visible_line() const;
    int first_visible_column() const;
    int gutter_width() const;  // pixels
    int char_width() const { return cell_width; }
    int line_height() const { return cell_height; }

    // --- bookmarks (InlayBookmarks.cpp) ---
    void ToggleBookmark(int line);
    void GotoNextBookmark();
    void GotoPrevBookmark();

    // --- clipboard (InlayClipboard.cpp) ---
    // The format that marks the text on the clipboard as a rectangle.
    static const char* const kRectangleFormat;

    // --- editing by others (InlayReplacing.cpp) ---
    // A part of the text, as compilers count: line from 1, column from 1 and length in bytes of
    // UTF-8.
    struct Part
    {
        int line = 0;
        int column = 0;
        int length = 0;
    };
    // The part's first cell and the one behind it. A line outside the text gives empty places.
    SELECTION CellsOf(const Part& part) const;
    // A part and the text of one line that takes its place.
    struct Replacement
    {
        Part part;
        QString text;
    };
    // The place of a caret in these terms; its length is 0.
    Part PartAt(CARET caret) const;
    // Carries the replacements out, which are in ascending order and do not overlap, as one step of
    // undo. Caret and bookmarks stay where they are in the text; a caret where something is
    // inserted comes to stand behind it. The link, when it is not 0, names the step to
    // LinkedStepMoved; what is typed next does not join it.
    void Replace(const std::vector<Replacement>& replacements, quint64 link = 0);
    // The same as a part of the last step.
    void ReplaceInLastStep(const std::vector<Replacement>& replacements);
    void ReplaceParts(const std::vector<Part>& parts, const QString& text, quint64 link = 0);
    // The text of a line, its tabs single characters; empty outside the text.
    QString LineText(int line) const;  // counted from 0
    bool is_overwrite_mode() const;
    // Gives each part a text that may have several lines, as one step of undo. The parts are in
    // ascending order and do not overlap. The caret is behind the first one then.
    void EditParts(const std::vector<Replacement>& edits);
    // Selects the part and shows it.
    void Select(const Part& part);

    // --- marks of others (InlayMarks.cpp) ---
    void SetMarks(std::vector<TextMark> marks);
    // Draws them and tells their words, which it does in the beginning, or does neither.
    void ShowMarks(bool shown);
    // What the marks at a point of the viewport say; empty where there is none.
    QString WordsAt(QPoint point) const;
    // To the next mark behind what is selected (or the one before it), around the end of the text.
    void GotoMark(bool forward);

signals:
    // A command has changed the text.
    void TextChanged();
    // GotoMark has selected the mark's part.
    void MarkReached(const TextMark& mark);
    // The author wants what is wrong at the caret to be put right (Alt+Enter).
    void FixAsked();
    void LetterSizeChanged(int points);
    // A command has ended.
    void ViewUpdated(bool textChanged);
    // Undo (or, with forward, redo) has carried out a step that ReplaceParts gave a link.
    void LinkedStepMoved(quint64 link, bool forward);

public slots:
    void OnEditUndo();
    void OnEditRedo();
    void OnEditSelectAll();
    void OnEditCopy();
    void OnEditCut();
    void OnEditPaste();
    void OnEditFind();
    void OnEditReplace();
    void OnEditFindNext();
    void OnEditFindPrevious();
    void OnEditDoReplace();
    void OnEditReplaceAll();
    void OnEditGotoLine();
    void OnViewToggleBookmark();
    void ShowContextMenu(const QPoint& point);

protected:
    // May rewrite what is searched for and what takes its place.
    virtual void FindPrepareSearchString(QString& text);
    virtual void FindPrepareReplaceString(QString& text);

    bool event(QEvent* event) override;  // tool tips
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    // Tab is a key like any other here.
    bool focusNextPrevChild(bool /*next*/) override { return false; }

private:
    // --- keys (InlayKeys.cpp) ---
    void store_modifiers(Qt::KeyboardModifiers modifiers);
    bool ProcessKeyDown(int key);
    bool process_control_key(int key);
    bool process_function_key(int key);
    bool move_by_key(int key);
    void move_caret(int dy, int dx);
    void move_by_word(bool right);
    void keep_whole_characters(bool forward);
    void move_home();
    void move_end();
    void move_to(CARET caret);
    CARET end_of_text() const;
    void begin_movement();
    void finish_movement();
    void delete_word(bool right);
    void goto_line(int number);
    bool type_text(const QString& text);
    bool OnChar(char16_t ch, bool further = false);
    void change_case(KVTextEditor::CHARACTER_FUNCTION fn);

    // --- editing (InlayEditing.cpp) ---
    struct Rows
    {
        int first;
        int last;
    };
    void begin_undo_step();
    void settle_selection();
    void keep_between_characters();
    void expand_tabs_of(int index);
    Rows rows_of(const SELECTION& rectangle) const;  // in the text
    bool parts_characters(const SELECTION& rectangle) const;
    BUFFER selected_lines() const;
    void delete_selection();
    void delete_rectangle();
    void delete_forward();
    void delete_backward();
    void delete_character_before(CARET caret);
    void delete_backward_in_rows();
    void erase_rest_of_character(CARET caret);
    void type_code_unit(char16_t ch, bool further);
    void leave_rectangle();
    void unindent();
    void open_column(Rows rows, int column, bool over);
    CARET paste_lines(const BUFFER& pasted, bool rectangle);
    CARET paste_stream(const BUFFER& pasted);
    CARET paste_rectangle(const BUFFER& pasted);

    // --- mouse (InlayMouse.cpp) ---
    void OnLButtonDown(QPoint point);
    void OnLButtonDblClk(QPoint point);
    bool is_third_click(QPoint point) const;
    void begin_line_selection(int line);
    void follow_mouse();
    void scroll_on();
    void extend_line_selection(CARET caret);
    void drop_selection();
    CARET remove_selection_before_drop();
    int characters_before_drop(const SELECTION& removed) const;
    void end_gesture();
    void update_cursor();

    // --- clipboard (InlayClipboard.cpp) ---
    QMimeData* selected_data() const;
    void paste_data(const QMimeData* offered);
    void offer_selection();
    void paste_selection_at(QPoint point);

    // --- find and replace (InlaySearch.cpp) ---
    void ShowFindDialog(bool replace);
    QString text_to_find() const;
    void SetFindStringFromSelection();
    bool DoFindNext(bool wrap);
    void say_of_search(const QString& message);
    std::optional<std::u16string> replace_all_in(std::u16string text);

    void goto_bookmark(int step);
    SELECTION cells_of(const TextMark& mark) const;
    void undo_or_redo(void (BACKEND::*step)(), quint64 link, bool forward);
    static QString text_of(const BUFFER& lines);  // joined with CR LF
    bool has_changed() const;                     // since the last command

    // --- painting (InlayPainting.cpp) ---
    void draw_canvas(const QRegion& region);
    void update_changed_rows();
    QRect row_rectangle(int row) const;
    void update_to_edges(const QRect& place);
    TextView prepare_view();
    void draw_caret(QPainter& painter);
    int gutter_digits() const;
    QRect caret_rectangle(CARET caret) const;
    QRegion caret_region() const;
    void update_caret();
    void prepare_glyphs(qreal ratio);
    void find_brackets();

    CARET place_in_text(CARET caret, bool free) const;
    CARET cell_under(QPoint point) const;
    void update_scroll_bars();
    void note_width();
    void note_width_of(int line);
    void keep_caret_in_text();
    void blink();

    QAbstractScrollArea* area;
    KVQtFindDialog* find_dialog;
    SearchNote* search_note;
    QTimer blink_timer;
    QTimer scroll_timer;  // while the mouse is held beyond the edge
    GlyphCache glyphs;
    QImage canvas;                                   // the frame without its caret
    std::vector<std::optional<quint64>> drawn_rows;  // what the canvas shows, see RowKeys
    QRegion drawn_caret;
    int cell_width = 1;
    int cell_height = 1;
    int told_lines = 1;         // of the text that ViewUpdated last told of
    mutable QString told_text;  // since the last command, null as long as nobody has asked
    int text_width = 0;         // cells of the widest line
    int widest_line = 0;
    LineMarks line_marks;
    bool marks_shown = true;
    int wheel_turned = 0;  // with Control, in eighths of a degree, less than a step

    bool caret_visible = true;
    std::array<CARET, 2> brackets = {{{-1, -1}, {-1, -1}}};  // at the caret, and its partner
    CARET brackets_caret;
    bool brackets_known = false;
    bool shift_held = false;
    bool control_held = false;
    bool alt_held = false;
    bool overwrite = false;  // where the system keeps no state of the Insert key

    bool button_held = false;
    bool selecting_lines = false;  // a selection that began in the gutter
    bool dragging = false;         // the selection is on its way to another place
    CARET press_position;
    CARET drop_position;
    std::optional<CARET> replaced_to;  // where the last "Replace" has put the caret
    QPoint mouse_point;                // where the held mouse was last
    QElapsedTimer double_click_time;   // since the last double-click
    QPoint double_click_point;
    SELECTION offered_selection;  // what the middle button was last offered
};
