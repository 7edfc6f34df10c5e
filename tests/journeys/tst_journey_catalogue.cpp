#include "catalogue/MediaModel.h"
#include "support/Facts.h"
#include "support/MediaFolder.h"
#include "support/ModalAnswer.h"
#include "support/WindowDriver.h"

#include <QAbstractItemView>
#include <QDialog>
#include <QDirIterator>
#include <QDockWidget>
#include <QHeaderView>
#include <QImageReader>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QListWidget>
#include <QMap>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>
#include <QTableView>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

const QStringList mediaSuffixes{"png", "jpg", "jpeg", "bmp", "mp4"};
const QStringList words{"bridge", "Bridge", "night_sky", "harbour", "two words",
                        "crème",  "fog",    "old_fog",   " x"};
const QStringList colours{"red", "lime", "blue", "yellow", "magenta", "cyan"};

QString suffixOf(const QString& name) {
    return name.section('.', -1).toLower();
}

QString txtNameOf(const QString& name) {
    return name.section('.', 0, -2) + ".txt";
}

// The text of a sidecar as tags; a typed entry keeps its blanks.
QStringList pieces(const QString& text, bool trims) {
    static const QRegularExpression separators("[,\n]");
    QStringList found = text.split(separators, Qt::SkipEmptyParts);
    for (QString& piece : found)
        piece = trims ? piece.trimmed() : piece;
    return found;
}

QString sorted(QStringList texts) {
    texts.sort();
    return texts.join(" | ");
}

template <typename T>
T pick(QRandomGenerator& random, const QList<T>& from) {
    return from.at(random.bounded(from.size()));
}

QStringList some(QRandomGenerator& random, QStringList from, int atMost) {
    std::shuffle(from.begin(), from.end(), random);
    return from.first(std::min<qsizetype>(from.size(), random.bounded(1, atMost + 1)));
}

// A directory with the usual irregularities.
void fill(const MediaFolder& folder) {
    const QStringList names{"IMG_0001.JPG",
                            "IMG_0002.JPG",
                            "naïve café.png",
                            "spaces # 100% %1 😀.png",
                            "a&b <i>bold<.png",
                            "many.dots.in.it.png",
                            "-dash.png",
                            "quote'd \"name\".png",
                            "back\\slash.png",
                            "ÜBER.PNG",
                            "bridge 7.jpeg",
                            "[1].png",
                            "1.png",
                            "2.png",
                            "10.png",
                            "very long name " + QString(120, 'n') + ".png"};
    for (qsizetype number = 0; number < names.size(); ++number) {
        const QHash<QString, QString> texts{{"parameters", QString("seed %1 <b>&amp;").arg(number)}};
        folder.addImage(names[number], QSize(20 + 3 * int(number), 40 + int(number)),
                        QColor(colours[number % colours.size()]),
                        number % 4 == 0 && names[number].endsWith("png") ? texts : QHash<QString, QString>());
    }
    folder.addFile("empty.png");
    folder.addFile("mislabelled.jpg", folder.content("1.png"));
    folder.addFile("truncated.png", folder.content("2.png").first(60));
    folder.addFile("no video.mp4", "text");
    folder.addFile("notes.md", "not listed");
    folder.addFile("stray.txt", "a text of no picture");
    folder.addTags("IMG_0001.JPG", "bridge, night_sky\nfog");
    folder.addTags("IMG_0002.JPG", "Bridge,bridge,,fog , fog");
    folder.addTags("naïve café.png", "crème\r\nbrûlée\r\n");
    folder.addTags("a&b <i>bold<.png", "<b>bold</b>,a&b");
    folder.addTags("many.dots.in.it.png", "dots");
    folder.addTags("1.png", "");
    folder.addTags("no video.mp4", "clip");
}

} // namespace

// A window on a directory of pictures, and beside it a model in plain containers. Each step is one thing that
// a user or another program does: it is done to both, and then all that can be seen is compared.
class CatalogueJourney {
public:
    using Arguments = QStringList;
    struct Row {
        QStringList tags;
        QString cells;    // as the views have shown them since the row was made
        QString searched; // what the filter line looks into besides the tags
        QString preview;
    };
    struct Sorting {
        int column = -1;
        Qt::SortOrder order = Qt::AscendingOrder;
    };
    struct Verb {
        void (CatalogueJourney::*perform)(const Arguments&);
        int weight; // of random steps
    };

    static const QMap<QString, Verb>& verbs() {
        using J = CatalogueJourney;
        static const QMap<QString, Verb> all{
            {"select", {&J::select, 20}},
            {"filter", {&J::filter, 12}},
            {"search tags", {&J::searchTags, 6}},
            {"filter tags", {&J::filterTags, 3}},
            {"add tags", {&J::addTags, 10}},
            {"delete tag", {&J::deleteTag, 5}},
            {"delete tag everywhere", {&J::deleteTagEverywhere, 3}},
            {"replace", {&J::replaceText, 3}},
            {"save", {&J::save, 6}},
            {"type", {&J::type, 5}},
            {"save typed", {&J::saveTyped, 5}},
            {"write outside", {&J::writeOutside, 6}},
            {"remove outside", {&J::removeOutside, 3}},
            {"delete file", {&J::deleteFiles, 2}},
            {"sort", {&J::sort, 5}},
            {"view", {&J::view, 4}},
            {"refresh", {&J::refresh, 2}},
            {"restart", {&J::restart, 1}},
        };
        return all;
    }

    CatalogueJourney()
        : driver([this] {
            fill(folder);
            WindowDriver::forgetSettings();
            return folder.path();
        }()) {
        for (const QString& name : folder.names())
            _disk.insert(name, folder.content(name));
        _label = "Current selection tags:";
        _preview = "Media preview none";
        scanned();
        resolveBinding();
    }

    // "verb: argument|argument". Returns what differs afterwards, or nothing.
    QString perform(const QString& step) {
        const QString verb = step.section(": ", 0, 0);
        const QString arguments = step.section(": ", 1);
        static_cast<void>(driver.freshLog());
        _log.clear();
        _complaints.clear();
        _bindings.clear();
        _isPreviewDue = false;
        _fileBefore = _editorFile;
        _followedBefore = _followed;
        _typedBefore = _isTyped ? _editorText : QString();
        (this->*verbs()[verb].perform)(arguments.isEmpty() ? Arguments() : arguments.split('|'));
        QString differs;
        const bool isSame = QTest::qWaitFor(
            [&] {
                WindowDriver::settle();
                differs = difference();
                // The previews of hidden rows, too.
                return differs.isEmpty() && WindowDriver::isLoadOver();
            },
            10000);
        return isSame ? QString() : differs;
    }

    QString difference() { return ::difference(expected(), seen()); }

    // --- steps ---------------------------------------------------------------------------------------

    void select(const Arguments& names) {
        driver.select(names);
        selected() = {names.cbegin(), names.cend()};
        compareSelection();
    }

    void filter(const Arguments& text) {
        driver.widget<QLineEdit>("leFilterImages")->setText(text.value(0));
        if (_filter == text.value(0))
            return;
        _filter = text.value(0);
        applyFilter();
    }

    void searchTags(const Arguments& tags) {
        auto* list = driver.widget<QListWidget>("lwAllImagesTags");
        QItemSelection items;
        for (int row = 0; row < list->count(); ++row) {
            if (tags.contains(list->item(row)->text()))
                items.select(list->model()->index(row, 0), list->model()->index(row, 0));
        }
        list->selectionModel()->select(items, QItemSelectionModel::ClearAndSelect);
        if (_searched.isEmpty() && tags.isEmpty())
            return;
        _searched = tags;
        QSet<QString> missed;
        for (const auto& [name, row] : std::as_const(_rows).asKeyValueRange()) {
            const bool hits = std::ranges::any_of(
                tags, [&row](const QString& tag) { return row.tags.contains(tag, Qt::CaseInsensitive); });
            if (!hits && !tags.isEmpty())
                missed.insert(name);
        }
        hide(missed);
    }

    void filterTags(const Arguments& text) {
        driver.widget<QLineEdit>("leFilterAllTags")->setText(text.value(0));
        _tagFilterCounts = _tagFilterCounts || _tagFilter != text.value(0);
        _tagFilter = text.value(0);
    }

    void addTags(const Arguments& text) {
        driver.trigger("addTag");
        const QWidget* dialog = driver.toolWindow("AddTagsDialog");
        const QString entry = text.value(0).replace("\\n", "\n");
        dialog->findChild<QPlainTextEdit*>()->setPlainText(entry);
        dialog->findChild<QPushButton*>("pBAdd")->click();
        if (selected().isEmpty())
            _complaints = {"Error, selection is empty...", "Error, selection is empty..."};
        for (const QString& name : std::as_const(selected()))
            _rows[name].tags += pieces(entry, false);
        tagsChanged();
        selectionChanged();
    }

    void deleteTag(const Arguments& tags) { chooseForTag("&Delete", tags, selected().values()); }
    void deleteTagEverywhere(const Arguments& tags) { chooseForTag("Delete &all", tags, _rows.keys()); }
    void chooseForTag(const QString& entry, const QStringList& tags, const QStringList& files) {
        for (QListWidgetItem* item :
             driver.widget<QListWidget>("lwImageTags")->findItems(tags[0], Qt::MatchExactly))
            item->setSelected(item->text() == tags[0]);
        driver.choose("lwImageTags", entry);
        for (const QString& name : files)
            _rows[name].tags.removeAll(tags[0]);
        tagsChanged();
        selectionChanged();
    }

    void replaceText(const Arguments& texts) {
        const ModalAnswer answer(ModalAnswer::DialogAnswer([&](QDialog* dialog) {
            dialog->findChild<QLineEdit*>("lESrcText")->setText(texts[0]);
            dialog->findChild<QLineEdit*>("lEDstText")->setText(texts.value(1));
            dialog->findChild<QPushButton*>("pBOk")->click();
        }));
        driver.choose("lwAllImagesTags", "R&eplace text");
        if (texts.value(1).isEmpty())
            return;
        for (Row& row : _rows)
            row.tags.replaceInStrings(texts[0], texts[1]);
        tagsChanged();
        selectionChanged();
    }

    void save(const Arguments&) {
        driver.click("tBSaveTags");
        for (const auto& [name, row] : std::as_const(_rows).asKeyValueRange()) {
            QStringList tags = row.tags;
            tags.removeDuplicates();
            for (QString& tag : tags)
                tag = tag.trimmed();
            _disk.insert(txtNameOf(name), tags.join(',').toUtf8());
        }
        applyFilter();
    }

    void type(const Arguments& text) {
        auto* edit = driver.widget<QPlainTextEdit>("pTETagsFromFile");
        edit->selectAll();
        edit->insertPlainText(text[0]);
        _editorText = text[0];
        _isTyped = true;
    }

    void saveTyped(const Arguments&) {
        driver.click("tBSaveTagTxtFile");
        _disk.insert(txtNameOf(_editorFile), _editorText.toUtf8());
        _isTyped = false;
        _rows[_editorFile].tags = pieces(_editorText, true);
        _shownTags = _rows[_editorFile].tags;
        tagsChanged();
    }

    // A picture as "COLOUR WIDTHxHEIGHT", or a text.
    void writeOutside(const Arguments& nameAndContent) {
        const QString& name = nameAndContent[0];
        const QString content = nameAndContent.value(1);
        if (mediaSuffixes.contains(suffixOf(name))) {
            const QStringList size = content.section(' ', 1).split('x');
            folder.addImage(name, QSize(size[0].toInt(), size[1].toInt()),
                            QColor(content.section(' ', 0, 0)));
        } else {
            folder.addFile(name, content.toUtf8());
        }
        _disk.insert(name, folder.content(name));
        addRows(mediaSuffixes.contains(suffixOf(name)) && !_rows.contains(name) ? QStringList(name)
                                                                                : QStringList());
    }

    void removeOutside(const Arguments& names) {
        for (const QString& name : names) {
            QFile::remove(folder.filePath(name));
            _disk.remove(name);
        }
        removeRows(names);
    }

    void deleteFiles(const Arguments&) {
        const ModalAnswer answer(QMessageBox::Ok);
        // The next row that stays is selected afterwards, the one before at the end.
        QSet<QString> next;
        bool isPassed = false;
        const QStringList shown = driver.shownNames();
        for (const QString& name : shown) {
            const bool isSelected = selected().contains(name);
            if (!isSelected)
                next = {name};
            if (isPassed && !isSelected)
                break;
            isPassed = isPassed || isSelected;
        }
        driver.choose(_view.toUtf8().constData(), "&Delete file");
        const QStringList names = selected().values();
        for (const QString& name : names)
            _disk.remove(name);
        removeRows(names);
        selected() = next;
        compareSelection();
    }

    void sort(const Arguments& entry) {
        static const QMap<QString, int> columns{
            {"&Name", ColName}, {"&Path", ColPath}, {"&Resolution", ColResolution}};
        driver.choose(_view.toUtf8().constData(), "&Sort/" + entry[0]);
        _sorting->column = columns[entry[0]];
        _sorting->order = _sorting->order == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    }

    void view(const Arguments& entry) {
        driver.choose(_view.toUtf8().constData(), "&View/" + entry[0]);
        _view = entry[0] == "&List" ? "treeView" : entry[0] == "&Table" ? "tableView" : "listView";
        if (_view == "listView")
            _viewMode = entry[0] == "&Icon" ? "icon" : "list";
        compareSelection();
    }

    void refresh(const Arguments& answer) {
        const ModalAnswer question(answer[0] == "Yes" ? QMessageBox::Yes : QMessageBox::No);
        driver.click("tBRefreshOpenFilePath");
        if (answer[0] == "Yes")
            scanned();
    }

    void restart(const Arguments&) {
        driver.restart();
        _storedSorting = _sorting;
        _filter.clear();
        _tagFilter.clear();
        _shownTags.clear();
        _searched.clear();
        _reported.clear();
        _label = "Current selection tags:";
        _preview = "Media preview none";
        scanned();
    }

    // --- the model -----------------------------------------------------------------------------------

    void scanned() {
        _rows.clear();
        _selected.clear();
        _searched.clear();
        _isTyped = false;
        _typedBefore = QString();
        compareSelection();
        for (const QString& name : _disk.keys()) {
            if (mediaSuffixes.contains(suffixOf(name)))
                _rows.insert(name, makeRow(name));
        }
        if (_sorting)
            _sorting = _storedSorting.value_or(Sorting{-1, _sorting->order});
        else
            _sorting = {-1, driver.widget<QTableView>("tableView")->horizontalHeader()->sortIndicatorOrder()};
        _bindings = _rows.keys();
        tagsChanged();
        applyFilter();
    }

    void addRows(const QStringList& names) {
        for (const QString& name : names)
            _rows.insert(name, makeRow(name));
        if (names.isEmpty())
            return;
        if (!_isTyped)
            _bindings = names;
        tagsChanged();
    }

    void removeRows(const QStringList& names) {
        for (const QString& name : names) {
            _rows.remove(name);
            _hidden.remove(name);
            for (QSet<QString>& chosen : _selected)
                chosen.remove(name);
        }
        compareSelection();
        tagsChanged();
    }

    // The window updates its panels if the selected files are not those that it shows.
    void compareSelection() {
        if (selected() != _reported)
            selectionChanged();
    }

    void selectionChanged() {
        const QSet<QString>& names = selected();
        _reported = names;
        _label = QString("Current selection [%1] tags:").arg(names.size());
        _shownTags.clear();
        if (names.isEmpty())
            return;
        for (const QString& name : names)
            _shownTags += _rows[name].tags;
        _bindings = names.values();
        _isPreviewDue = true;
    }

    // The list of all tags is rebuilt, which clears its selection and so ends a search by it.
    void tagsChanged() {
        _tagFilterCounts = false;
        if (_searched.isEmpty())
            return;
        _searched.clear();
        hide({});
    }

    void applyFilter() {
        QSet<QString> missed;
        for (const auto& [name, row] : std::as_const(_rows).asKeyValueRange()) {
            const bool hits =
                _filter.compare(":missingtxt", Qt::CaseInsensitive) == 0
                    ? _disk.value(txtNameOf(name)).isEmpty()
                    : (row.searched + '\n' + row.tags.join('\n')).contains(_filter, Qt::CaseInsensitive);
            if (!hits)
                missed.insert(name);
        }
        hide(_filter.isEmpty() ? QSet<QString>() : missed);
    }

    void hide(const QSet<QString>& names) {
        _hidden = names;
        for (QSet<QString>& chosen : _selected)
            chosen -= names;
        compareSelection();
    }

    Row makeRow(const QString& name) const {
        const QImage image(folder.filePath(name));
        QImageReader reader(folder.filePath(name));
        const QSize size = reader.size();
        const QString resolution = QString("%1x%2").arg(size.width()).arg(size.height());
        const QString toolTip =
            resolution + ' ' + name.section('.', -1).toUpper() + '\n' + name + '\n' + folder.path();
        Row row;
        row.tags = pieces(textOf(txtNameOf(name)), true);
        row.searched = toolTip + '\n' + folder.filePath(name);
        row.cells = QStringList{name,
                                toolTip,
                                resolution,
                                reader.textKeys().isEmpty() ? "No" : "Yes",
                                name.section('.', -1),
                                _disk.value(txtNameOf(name)).isEmpty() ? "No" : "Yes",
                                middleColour(image)}
                        .join(" | ");
        row.preview = suffixOf(name) == "mp4" ? QString("Video preview none")
                                              : QString("Image %1x%2 preview %3")
                                                    .arg(image.width())
                                                    .arg(image.height())
                                                    .arg(middleColour(image));
        return row;
    }

    QStringList shown() const {
        QStringList names = _rows.keys();
        names.removeIf([this](const QString& name) { return _hidden.contains(name); });
        return names;
    }

    QString textOf(const QString& txtName) const { return QString::fromUtf8(_disk.value(txtName)); }

    bool isTagHidden(const QString& tag) const {
        return _tagFilterCounts && !tag.contains(_tagFilter, Qt::CaseInsensitive);
    }

    // --- what can be seen ----------------------------------------------------------------------------

    Facts expected() {
        Facts facts;
        for (const auto& [name, content] : std::as_const(_disk).asKeyValueRange())
            facts["disk " + name] = contentFact(content);
        const QStringList names = shown();
        for (const char* view : {"listView", "treeView", "tableView"}) {
            facts[QString(view) + " rows"] = sorted(names);
            facts[QString(view) + " order"] = "sorted";
        }
        for (const QString& name : names)
            facts["row " + name] = _rows[name].cells;
        if (_sorting->column >= 0)
            facts["sorted by"] = QString("%1 %2").arg(_sorting->column).arg(int(_sorting->order));
        facts["view"] = _view + ' ' + _viewMode;
        facts["selection"] = sorted(selected().values());
        facts["label of the selection"] = _label;
        facts["tags of the selection"] = sorted(_shownTags);
        QMap<QString, int> counts;
        for (const Row& row : std::as_const(_rows)) {
            for (const QString& tag : row.tags)
                ++counts[tag];
        }
        for (const auto& [tag, count] : std::as_const(counts).asKeyValueRange()) {
            facts["tag " + tag] = QString("Count: %1%2").arg(count).arg(isTagHidden(tag) ? " hidden" : "");
        }
        facts["searched tags"] = sorted(_searched);
        resolveBinding();
        facts["editor label"] = (_isSidecarThere ? "File: " : "File tag, txt, missing for: ") +
                                folder.filePath(txtNameOf(_editorFile));
        facts["editor"] = _editorText;
        facts["preview"] = _preview;
        facts["complaints"] = _complaints.join('\n');
        return facts;
    }

    void resolveBinding() {
        if (_bindings.isEmpty())
            return;
        const QString label = driver.text("labelTagsFromFile");
        const auto isShown = [&](const QString& name) {
            return label.endsWith(' ' + folder.filePath(txtNameOf(name)));
        };
        // A typed text stays while the first selected file is the same.
        const bool mayKeep = !_typedBefore.isNull() && _isPreviewDue && _bindings.contains(_followedBefore);
        const bool isKept = mayKeep && isShown(_fileBefore) && driver.text("pTETagsFromFile") == _typedBefore;
        const auto shown = std::ranges::find_if(_bindings, isShown);
        const QString first = isKept                     ? _followedBefore
                              : shown == _bindings.end() ? _bindings.first()
                                                         : *shown;
        if (_isPreviewDue) {
            _preview = _rows[first].preview;
            _followed = first;
        }
        _isTyped = isKept;
        _editorFile = isKept ? _fileBefore : first;
        if (isKept) {
            _editorText = _typedBefore;
            return;
        }
        _isSidecarThere = _disk.contains(txtNameOf(_editorFile));
        _editorText = textOf(txtNameOf(_editorFile)).replace("\r\n", "\n");
    }

    Facts seen() {
        Facts facts = diskFacts(folder.path());
        for (const char* view : {"listView", "treeView", "tableView"}) {
            facts[QString(view) + " rows"] = sorted(driver.shownNames(view));
            facts[QString(view) + " order"] =
                isInOrder(view) ? "sorted" : driver.shownNames(view).join(" | ");
        }
        const QAbstractItemModel* rows = driver.widget<QAbstractItemView>("listView")->model();
        for (int row = 0; row < rows->rowCount(); ++row)
            facts["row " + rows->index(row, ColName).data().toString()] = cellsOf(rows->index(row, ColName));
        const QHeaderView* header = driver.widget<QTableView>("tableView")->horizontalHeader();
        if (_sorting->column >= 0)
            facts["sorted by"] =
                QString("%1 %2").arg(header->sortIndicatorSection()).arg(int(header->sortIndicatorOrder()));
        facts["view"] =
            driver.currentView()->objectName() +
            (driver.widget<QListView>("listView")->viewMode() == QListView::IconMode ? " icon" : " list");
        facts["selection"] = sorted(driver.selectedNames());
        facts["label of the selection"] = driver.text("labelCurrentSelectionTags");
        facts["tags of the selection"] = sorted(driver.tagTexts("lwImageTags"));
        const auto* tags = driver.widget<QListWidget>("lwAllImagesTags");
        for (int row = 0; row < tags->count(); ++row)
            facts["tag " + tags->item(row)->text()] +=
                tags->item(row)->toolTip() + (tags->isRowHidden(row) ? " hidden" : "");
        facts["searched tags"] = sorted(driver.tagTexts("lwAllImagesTags", true));
        facts["editor label"] = driver.text("labelTagsFromFile");
        facts["editor"] = driver.text("pTETagsFromFile");
        const QString title =
            driver.widget<QDockWidget>("dockWidget_ImgPreview")->windowTitle().section(" [", 0, 0);
        const QImage preview = driver.widget<QWidget>("imgWidget")->grab().toImage();
        facts["preview"] = title + ' ' + (title == "Video preview" ? "none" : middleColour(preview));
        // A start without a server and files that are no pictures log failures of their own.
        static const QRegularExpression complaint(
            "^(?!.*(empty\\.png|truncated\\.png|no video\\.mp4|get reply error|not JSON|header state))"
            "(Error|Failed|Unable|Warning)");
        _log += driver.freshLog();
        facts["complaints"] = _log.filter(complaint).join('\n');
        return facts;
    }

    QString cellsOf(const QModelIndex& row) const {
        QStringList cells{row.data().toString(), row.data(Qt::ToolTipRole).toString()};
        for (const int column : {ColResolution, ColComment, ColSuffix, ColHasTxtFile})
            cells.append(row.siblingAtColumn(column).data().toString());
        cells.append(middleColour(row.data(Qt::DecorationRole).value<QImage>()));
        return cells.join(" | ");
    }

    bool isInOrder(const char* viewName) const {
        if (_sorting->column < 0)
            return true;
        const QAbstractItemModel* model = driver.widget<QAbstractItemView>(viewName)->model();
        for (int row = 1; row < model->rowCount(); ++row) {
            const QVariant before = model->index(row - 1, _sorting->column).data(RoleValue);
            const QVariant here = model->index(row, _sorting->column).data(RoleValue);
            const auto comparison = QVariant::compare(before, here);
            if (comparison ==
                (_sorting->order == Qt::AscendingOrder ? QPartialOrdering::Greater : QPartialOrdering::Less))
                return false;
        }
        return true;
    }

    // --- random steps --------------------------------------------------------------------------------

    // A step that makes sense now.
    QString randomStep(QRandomGenerator& random) const {
        QStringList names;
        for (const auto& [name, verb] : verbs().asKeyValueRange())
            names += QStringList(verb.weight, name);
        const QString verb = pick(random, names);
        const QStringList listed = driver.tagTexts("lwAllImagesTags");
        const QStringList ofSelection = driver.tagTexts("lwImageTags");
        const QStringList chosen = driver.selectedNames();
        QStringList visible = listed;
        visible.removeIf([this](const QString& tag) { return isTagHidden(tag); });
        const QString free = QString("new %1.png").arg(random.generate());
        const QStringList filters{"", "", "bridge", "fog", "SKY", ":missingTxt", ".jpg", "23x4", "seed"};
        QStringList arguments;
        if (verb == "select" && !shown().isEmpty())
            arguments = random.bounded(6) == 0 ? QStringList() : some(random, shown(), 4);
        else if (verb == "filter" || verb == "filter tags")
            arguments = {pick(random, filters)};
        else if (verb == "search tags" && !visible.isEmpty())
            arguments = random.bounded(3) == 0 ? QStringList() : some(random, visible, 2);
        else if (verb == "add tags")
            arguments = {pick(random, words) + "," + pick(random, words) + "\\n" + pick(random, words)};
        else if ((verb == "delete tag" || verb == "delete tag everywhere") && !ofSelection.isEmpty() &&
                 !chosen.isEmpty())
            arguments = {pick(random, ofSelection)};
        else if (verb == "replace")
            arguments = {pick(random, words), pick(random, words)};
        else if (verb == "type" && _rows.contains(_editorFile))
            arguments = {pick(random, words) + " , " + pick(random, words)};
        else if (verb == "write outside")
            arguments = random.bounded(3) > 0 && _rows.size() < 40
                            ? QStringList{free, QString("%1 %2x%3")
                                                    .arg(pick(random, colours))
                                                    .arg(random.bounded(20, 90))
                                                    .arg(random.bounded(20, 90))}
                            : QStringList{txtNameOf(pick(random, _rows.keys())), pick(random, words)};
        else if (verb == "remove outside" && _rows.size() > 15)
            arguments = some(random, _rows.keys(), 2);
        else if (verb == "sort" && !chosen.isEmpty())
            arguments = {pick(random, QStringList{"&Name", "&Path", "&Resolution"})};
        else if (verb == "view" && !chosen.isEmpty())
            arguments = {pick(random, QStringList{"&Icon", "&List simple", "&List", "&Table"})};
        else if (verb == "refresh")
            arguments = {pick(random, QStringList{"Yes", "No"})};
        const bool needsNoArguments = verb == "save" || verb == "restart" ||
                                      (verb == "save typed" && _isTyped && _rows.contains(_editorFile)) ||
                                      (verb == "delete file" && !chosen.isEmpty() && _rows.size() > 15);
        if (arguments.isEmpty() && !needsNoArguments)
            return "select: ";
        return verb + ": " + arguments.join('|');
    }

    [[nodiscard]] QSet<QString>& selected() { return _selected[_view]; }

    const MediaFolder folder;
    WindowDriver driver;
    QMap<QString, QByteArray> _disk;
    QMap<QString, Row> _rows;
    QSet<QString> _hidden;
    QMap<QString, QSet<QString>> _selected; // by view
    QSet<QString> _reported;
    QString _view = "listView";
    QString _viewMode = "icon";
    QString _filter;
    QStringList _searched;
    QStringList _shownTags;
    QString _tagFilter;
    bool _tagFilterCounts = false; // a rebuilt list shows all tags until the text changes
    QString _label;
    QString _editorFile;
    QString _editorText;
    bool _isSidecarThere = false;
    bool _isTyped = false; // and not yet saved
    QString _followed;     // the file that a selection showed last
    QString _followedBefore;
    QString _fileBefore;
    QString _typedBefore; // null if all was saved
    QString _preview;
    // Which of several files comes first is the window's choice, so one of these.
    QStringList _bindings;
    bool _isPreviewDue = false;
    std::optional<Sorting> _sorting;
    std::optional<Sorting> _storedSorting;
    // Of the running step.
    QStringList _log;
    QStringList _complaints;
};

// An hour over one directory: looking, sorting, filtering and tagging, while other programs write there.
class CatalogueJourneyTest : public QObject {
    Q_OBJECT

private slots:
    void anHour() {
        CatalogueJourney journey;
        QVERIFY2(journey.difference().isEmpty(), qPrintable(journey.difference()));
        // Nothing is sorted at first, so the rows are in the order of the disk.
        QStringList onDisk;
        QDirIterator entries(journey.folder.path(), QDir::Files);
        while (entries.hasNext())
            onDisk.append(QFileInfo(entries.next()).fileName());
        const QStringList shown = journey.driver.shownNames();
        onDisk.removeIf([&](const QString& name) { return !shown.contains(name); });
        QCOMPARE(shown, onDisk);
        for (const char* step : {
                 "select: IMG_0001.JPG",
                 "add tags: harbour, two words\\nfog",
                 "select: IMG_0001.JPG|IMG_0002.JPG|naïve café.png|empty.png|no video.mp4",
                 "delete tag: fog",
                 "sort: &Name",
                 "sort: &Name",
                 "filter: :MISSINGtxt",
                 "save: ",
                 "filter: BRIDGE",
                 "select: IMG_0002.JPG",
                 "add tags: bridge, bridge",
                 "save: ",
                 "type: raw ,text,, here",
                 "write outside: meanwhile.png|lime 60x61",
                 "save typed: ",
                 "filter: ",
                 "select: a&b <i>bold<.png",
                 "delete tag everywhere: <b>bold</b>",
                 "replace: dots|points",
                 "replace: dots|",
                 "filter tags: POINT",
                 "filter tags: ",
                 "search tags: points|bridge",
                 "search tags: ",
                 "write outside: later.png|cyan 90x33",
                 "write outside: later.txt|unread",
                 "remove outside: later.png|1.png",
                 "select: 2.png",
                 "view: &Table",
                 "select: 10.png|IMG_0002.JPG",
                 "sort: &Resolution",
                 "select: [1].png|10.png|2.png|-dash.png",
                 "filter: 10.png",
                 "filter: ",
                 "select: [1].png|empty.png|-dash.png",
                 "delete file: ",
                 "refresh: No",
                 "refresh: Yes",
                 "select: 10.png",
                 "view: &List simple",
                 "select: truncated.png",
                 "sort: &Path",
                 "restart: ",
                 "select: quote'd \"name\".png|back\\slash.png",
                 "view: &List",
             }) {
            const QString differs = journey.perform(QString::fromUtf8(step));
            QVERIFY2(differs.isEmpty(), qPrintable(QString::fromUtf8(step) + '\n' + differs));
        }
    }

    // TESSARINE_SEED repeats a walk, TESSARINE_STEPS sets its length.
    void randomSteps() {
        constexpr quint32 usualSeed = 25;
        constexpr int usualSteps = 300;
        const QByteArray seed = qgetenv("TESSARINE_SEED");
        QRandomGenerator random(seed.isEmpty() ? usualSeed : seed.toUInt());
        const int count = qEnvironmentVariableIntegerValue("TESSARINE_STEPS").value_or(usualSteps);
        CatalogueJourney journey;
        QStringList steps;
        while (steps.size() < count) {
            steps.append(journey.randomStep(random));
            const QString differs = journey.perform(steps.last());
            if (!differs.isEmpty())
                fprintf(stderr, "The steps:\n%s\n", qPrintable(steps.join('\n')));
            QVERIFY2(differs.isEmpty(), qPrintable(differs));
        }
    }
};

QTEST_MAIN(CatalogueJourneyTest)
#include "tst_journey_catalogue.moc"
