#pragma once

#include <QTest>

#include <initializer_list>
#include <tuple>

// The table of a data-driven test, a line a row: its name, then its cells.
template <typename... Cells>
void addRows(std::initializer_list<std::tuple<const char*, Cells...>> rows) {
    using Row = std::tuple<Cells...>;
    QTest::addColumn<Row>("row");
    for (const auto& named : rows)
        std::apply([](const char* name, const Cells&... cells) { QTest::newRow(name) << Row(cells...); },
                   named);
}

// The cells of the row that is being tested.
template <typename... Cells>
const std::tuple<Cells...>& row() {
    using Row = std::tuple<Cells...>;
    return *static_cast<const Row*>(QTest::qData("row", qMetaTypeId<Row>()));
}
