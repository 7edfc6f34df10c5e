#pragma once

#include <QImage>
#include <QSize>
#include <QString>
#include <QStringList>

#include <functional>

namespace reference {

// Takes the first frame of every clip with a bare pool of players that are reused from clip to clip, scales
// it into the size and hands it over with the resolution that the player reports. Returns with the last clip.
void probeClips(const QStringList& clips, const QSize& size, int players,
                const std::function<void(const QString&, const QImage&, const QSize&)>& take);

} // namespace reference
