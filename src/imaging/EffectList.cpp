#include "imaging/EffectList.h"

#include <QMetaObject>
#include <QMetaType>

void registerEffectListType() {
    // The type's own name travels in the stream; this one is what stored profiles may carry besides.
    const QByteArray name = QMetaObject::normalizedType("QList<QPair<QString, QHash<QString,QVariant>>>");
    qRegisterMetaType<EffectList>();
    qRegisterMetaType<EffectList>(name.constData());
}

QVariant effectListToVariant(const EffectList& effects) {
    return QVariant::fromValue(effects);
}

EffectList effectListFromVariant(const QVariant& value) {
    if (value.metaType() != QMetaType::fromType<EffectList>())
        return {};
    return value.value<EffectList>();
}
