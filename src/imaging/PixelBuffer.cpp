#include "imaging/PixelBuffer.h"

#include <QColorSpace>

#ifdef Q_OS_LINUX
#include <sys/mman.h>
#endif

namespace {

// The system provides fresh memory page by page at first use, which takes longer than filling it. Large pages
// cost a fraction of that; where the system has none, small ones remain.
void preferLargePages([[maybe_unused]] uchar* memory, [[maybe_unused]] qsizetype size) {
#ifdef Q_OS_LINUX
    constexpr quintptr largePage = quintptr{2} << 20;
    const auto address = reinterpret_cast<quintptr>(memory);
    // Only whole large pages inside the buffer, as the advice must not reach its neighbours.
    const quintptr begin = (address + largePage - 1) / largePage * largePage;
    const quintptr end = (address + static_cast<quintptr>(size)) / largePage * largePage;
    if (begin < end)
        (void)madvise(memory + (begin - address), end - begin, MADV_HUGEPAGE);
#endif
}

} // namespace

QImage blankLike(const QImage& image) {
    QImage blank(image.size(), image.format());
    if (blank.isNull())
        return blank;
    preferLargePages(blank.bits(), blank.sizeInBytes());
    blank.setDotsPerMeterX(image.dotsPerMeterX());
    blank.setDotsPerMeterY(image.dotsPerMeterY());
    blank.setDevicePixelRatio(image.devicePixelRatio());
    blank.setOffset(image.offset());
    const QStringList textKeys = image.textKeys();
    for (const QString& key : textKeys)
        blank.setText(key, image.text(key));
    blank.setColorSpace(image.colorSpace());
    return blank;
}

bool isFlat32Bit(const QImage& image) {
    return image.depth() == 32 && image.bytesPerLine() == qsizetype{4} * image.width();
}
