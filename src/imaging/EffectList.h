#pragma once

#include <QHash>
#include <QLatin1StringView>
#include <QList>
#include <QString>
#include <QVariant>

#include <utility>

// A filter chain as profiles keep it: one entry a row, in order, the filter's name and the row's options.
using EffectList = QList<std::pair<QString, QHash<QString, QVariant>>>;

// The option of a profile under which its chain is kept.
inline constexpr QLatin1StringView effectListOption{"effectList"};

// Makes stored effect lists readable; must run before any profile is restored. May be called repeatedly.
void registerEffectListType();

[[nodiscard]] QVariant effectListToVariant(const EffectList& effects);
// Empty for an absent value and for one of another type.
[[nodiscard]] EffectList effectListFromVariant(const QVariant& value);
