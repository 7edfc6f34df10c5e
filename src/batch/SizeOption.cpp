#include "batch/SizeOption.h"

#include "batch/Arguments.h"
#include "batch/Console.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int longestSide = 999999; // as in the window

} // namespace

QSize sizeOption(Arguments& arguments) {
    const QStringList sides = arguments.value(u"size"_s).split(u'x');
    // 0 marks a fault, as it is no valid side.
    const auto side = [&](const QString& text) {
        bool ok = false;
        const int length = text.toInt(&ok);
        return ok && (length == -1 || (length > 0 && length <= longestSide)) ? length : 0;
    };
    const QSize size(side(sides.first()), side(sides.last()));
    if (sides.size() != 2 || size.width() == 0 || size.height() == 0 || size == QSize(-1, -1))
        arguments.reject(Batch::tr("--size takes WxH, where -1 lets one side follow, not \"%1\"")
                             .arg(arguments.value(u"size"_s)));
    return size;
}
