#include "Require.h"
#include "imaging/EffectList.h"
#include "imaging/ProfileStream.h"

#include <cstddef>
#include <cstdint>

namespace {

void requireSameShape(const Profile& left, const Profile& right) {
    require(left.name() == right.name() && left.options().size() == right.options().size());
    for (const auto& [key, value] : left.options().asKeyValueRange()) {
        require(right.options().contains(key));
        const QVariant other = right.options().value(key);
        require(value.metaType() == other.metaType());
        require(effectListFromVariant(value).size() == effectListFromVariant(other).size());
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    registerEffectListType();
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    const QByteArray input(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(count));
    const ProfileStreamContents contents = readProfileStream(input);
    if (contents.status != QDataStream::Ok)
        return 0;
    // What was read can be stored and read back. Only the order within a hash may differ.
    const QByteArray written = writeProfileStream(contents.profiles, contents.current);
    const ProfileStreamContents again = readProfileStream(written);
    require(again.status == QDataStream::Ok && again.current == contents.current &&
            again.profiles.size() == contents.profiles.size());
    for (qsizetype i = 0; i < again.profiles.size(); ++i)
        requireSameShape(contents.profiles[i], again.profiles[i]);
    require(writeProfileStream(again.profiles, again.current).size() == written.size());
    return 0;
}
