#include "imaging/EffectList.h"

#include <QMetaObject>
#include <QMetaType>

void registerEffectListType() {
    // Streams are written with the type's own name; profiles stored under the name below stay readable.
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
