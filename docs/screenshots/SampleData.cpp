#include "SampleData.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QProcess>
#include <QRandomGenerator>
#include <QtEndian>

#include <array>

namespace {

struct Light {
    QColor zenith;
    QColor horizon;
    QColor sun;
    QColor farRidge;
    QColor nearRidge;
    double sunHeight; // of the sky, 1 at the zenith
    int stars;
};

const Light dawn{"#3d5a8c", "#f6c6a0", "#fff1d0", "#a48cae", "#2e2a44", 0.18, 0};
const Light noon{"#2f78c4", "#cfe6f5", "#ffffff", "#8fb0c4", "#2f5a3a", 0.75, 0};
const Light dusk{"#2a2350", "#f0764a", "#ffd9a0", "#8a5576", "#1c1630", 0.10, 12};
const Light night{"#070b1e", "#27406e", "#f4f4ff", "#30426a", "#080c18", 0.62, 240};
const Light mist{"#9fb0ba", "#e6e4dc", "#f6f2e6", "#b9c2c4", "#53646a", 0.45, 0};
const Light desert{"#5a8fc0", "#f7e2b8", "#fff7e0", "#d69a66", "#8c4a2a", 0.55, 0};

struct Landscape {
    const char* fileName;
    QSize size;
    Light light;
    bool hasLake;
    const char* tags; // null for no sidecar
};

const std::array<Landscape, 16> landscapes{{
    {"alpine_lake.png", {1600, 1067}, dawn, true, "landscape, mountains, lake, dawn, reflection"},
    {"blue_ridge.jpg", {1920, 1080}, noon, false, "landscape, mountains, noon, clear sky"},
    {"canyon.jpg", {1600, 1067}, desert, false, "landscape, desert, canyon, clear sky"},
    {"dunes.webp", {1280, 853}, desert, false, "landscape, desert, dunes"},
    {"evening_fjord.png", {1920, 1080}, dusk, true, "landscape, fjord, dusk, reflection, red sky"},
    {"first_light.jpg", {1067, 1600}, dawn, false, nullptr},
    {"foggy_pass.png", {1280, 853}, mist, false, "landscape, mountains, mist"},
    {"ice_lake.jpg", {1600, 1067}, mist, true, "landscape, lake, mist, winter, reflection"},
    {"last_sun.webp", {1280, 853}, dusk, false, "landscape, mountains, dusk, red sky"},
    {"midnight.png", {1600, 900}, night, true, "landscape, night, moon, stars, lake, reflection"},
    {"moonrise.jpg", {1067, 1600}, night, false, "landscape, night, moon, stars"},
    {"north_face.png", {1200, 1200}, noon, false, nullptr},
    {"quiet_water.jpg", {1600, 1067}, noon, true, "landscape, lake, noon, reflection"},
    {"red_valley.png", {1920, 1080}, desert, false, nullptr},
    {"summer_pond.webp", {1200, 900}, noon, true, "landscape, lake, summer"},
    {"winter_dawn.png", {1600, 1067}, dawn, false, "landscape, mountains, dawn, winter"},
}};

// Heights of a ridge from 0 to 1 by midpoint displacement.
QList<double> ridge(QRandomGenerator& random, int steps, double roughness) {
    QList<double> heights(steps + 1, 0.5);
    double reach = 0.5;
    for (int span = steps; span > 1; span /= 2, reach *= roughness) {
        for (int at = span / 2; at < steps; at += span) {
            const double middle = (heights[at - span / 2] + heights[at + span / 2]) / 2;
            heights[at] = middle + (random.generateDouble() - 0.5) * reach;
        }
    }
    return heights;
}

QColor mixed(const QColor& a, const QColor& b, double share) {
    const auto mix = [share](float x, float y) { return float(x + (y - x) * share); };
    return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()), mix(a.blueF(), b.blueF()));
}

void paintSky(QPainter& painter, const QRectF& sky, const Light& light, QRandomGenerator& random) {
    QLinearGradient air(sky.topLeft(), sky.bottomLeft());
    air.setColorAt(0, light.zenith);
    air.setColorAt(1, light.horizon);
    painter.fillRect(sky, air);
    painter.setPen(Qt::NoPen);
    for (int star = 0; star < light.stars; ++star) {
        painter.setBrush(QColor(255, 255, 255, random.bounded(60, 230)));
        const double radius = 0.4 + random.generateDouble() * sky.width() / 900;
        painter.drawEllipse(QPointF(random.bounded(sky.width()), random.bounded(sky.height() * 0.8)), radius,
                            radius);
    }
    const QPointF sun(sky.width() * (0.2 + random.generateDouble() * 0.6),
                      sky.height() * (1 - light.sunHeight));
    QRadialGradient glow(sun, sky.width() * 0.35);
    QColor halo = light.sun;
    halo.setAlphaF(0.75F);
    glow.setColorAt(0, halo);
    halo.setAlphaF(0);
    glow.setColorAt(1, halo);
    painter.fillRect(sky, glow);
    painter.setBrush(light.sun);
    painter.drawEllipse(sun, sky.width() * 0.025, sky.width() * 0.025);
}

void paintRidges(QPainter& painter, const QRectF& sky, const Light& light, QRandomGenerator& random) {
    constexpr int count = 5;
    constexpr int steps = 512;
    for (int layer = 0; layer < count; ++layer) {
        const double depth = double(layer) / (count - 1);
        const QList<double> heights = ridge(random, steps, 0.46 + 0.1 * (1 - depth));
        const double base = sky.height() * (0.62 + 0.3 * depth);
        QPainterPath path(QPointF(0, sky.bottom() + 1));
        for (int step = 0; step <= steps; ++step)
            path.lineTo(sky.width() * step / steps,
                        base - heights[step] * sky.height() * (0.45 - 0.3 * depth));
        path.lineTo(sky.width(), sky.bottom() + 1);
        QLinearGradient slope(0, base - sky.height() * 0.25, 0, sky.bottom());
        const QColor color = mixed(light.farRidge, light.nearRidge, depth);
        slope.setColorAt(0, color);
        slope.setColorAt(1, mixed(color, light.horizon, 0.35 * (1 - depth)));
        painter.fillPath(path, slope);
    }
}

// Grain, so that pictures compress and filter as photographs do.
void addGrain(QImage& image, QRandomGenerator& random) {
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int noise = int(random.generate() % 3) - 1;
            const auto grained = [noise](int channel) { return qBound(0, channel + noise, 255); };
            line[x] = qRgb(grained(qRed(line[x])), grained(qGreen(line[x])), grained(qBlue(line[x])));
        }
    }
}

QImage paint(const QSize& size, const Light& light, bool hasLake, quint32 seed) {
    QRandomGenerator random(seed);
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const int shore = hasLake ? size.height() * 2 / 3 : size.height();
    const QRectF sky(0, 0, size.width(), shore);
    paintSky(painter, sky, light, random);
    paintRidges(painter, sky, light, random);
    if (hasLake) {
        const int depth = size.height() - shore;
        const QImage mirrored = image.copy(0, shore - depth, size.width(), depth).flipped(Qt::Vertical);
        painter.drawImage(0, shore, mirrored);
        painter.fillRect(0, shore, size.width(), depth, QColor(10, 30, 50, 70));
    }
    painter.end();
    addGrain(image, random);
    return image;
}

[[noreturn]] void giveUp(const QString& path) {
    qFatal("cannot write %s", qPrintable(path));
}

void write(const QString& path, const QByteArray& content) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        giveUp(path);
}

void saveLandscape(const QString& directory, const Landscape& landscape, quint32 seed) {
    QImage image = paint(landscape.size, landscape.light, landscape.hasLake, seed);
    const QString path = directory + '/' + landscape.fileName;
    if (path.endsWith(".png")) {
        image.setText("parameters",
                      QString("a painted landscape, seed %1, steps 28, sampler euler").arg(seed));
        image.setText("Software", "sample data");
    }
    if (!image.save(path, nullptr, path.endsWith(".png") ? -1 : 88))
        giveUp(path);
    if (landscape.tags)
        write(directory + '/' + QFileInfo(path).completeBaseName() + ".txt", landscape.tags);
}

// A slow pan over a wide picture.
void saveClip(const QString& directory, const QString& name, const Light& light, quint32 seed) {
    const QString wide = directory + "/wide.png";
    const QString path = directory + '/' + name;
    if (!paint({2560, 720}, light, true, seed).save(wide))
        giveUp(wide);
    const QStringList arguments{"-loglevel",
                                "error",
                                "-y",
                                "-loop",
                                "1",
                                "-framerate",
                                "30",
                                "-i",
                                wide,
                                "-t",
                                "8",
                                "-vf",
                                "crop=1280:720:t*150:0",
                                "-pix_fmt",
                                "yuv420p",
                                "-crf",
                                "24",
                                path};
    if (QProcess::execute("ffmpeg", arguments) != 0)
        giveUp(path);
    QFile::remove(wide);
}

// A header with names, shapes and texts as training tools write them, and the bytes that it promises.
void saveModel(const QString& path) {
    QJsonObject header{
        {"__metadata__", QJsonObject{{"ss_network_dim", "16"},
                                     {"ss_network_alpha", "8"},
                                     {"ss_learning_rate", "0.0001"},
                                     {"ss_num_epochs", "12"},
                                     {"ss_resolution", "(1024, 1024)"},
                                     {"ss_tag_frequency", "landscape: 14, mountains: 6, lake: 6"},
                                     {"modelspec.title", "Painted landscapes"}}}};
    constexpr int tensorSize = 2 * 16 * 64;
    constexpr int count = 12;
    for (int block = 0; block < count; ++block) {
        header.insert(
            QString("blocks.%1.attention.lora_down.weight").arg(block, 2, 10, QChar('0')),
            QJsonObject{{"dtype", "F16"},
                        {"shape", QJsonArray{16, 64}},
                        {"data_offsets", QJsonArray{block * tensorSize, (block + 1) * tensorSize}}});
    }
    const QByteArray json = QJsonDocument(header).toJson(QJsonDocument::Compact);
    QByteArray length(8, '\0');
    qToLittleEndian<quint64>(quint64(json.size()), length.data());
    write(path, length + json + QByteArray(tensorSize * count, '\0'));
}

} // namespace

void makeSampleData(const QString& directory) {
    if (!QDir().mkpath(directory + "/models"))
        giveUp(directory);
    quint32 seed = 3;
    for (const Landscape& landscape : landscapes)
        saveLandscape(directory, landscape, seed += 7);
    saveClip(directory, "pan_evening.mp4", dusk, 41);
    saveClip(directory, "pan_noon.mp4", noon, 42);
    write(directory + "/pan_noon.txt", "clip, pan, lake, noon");
    saveModel(directory + "/models/painted_landscapes.safetensors");
    if (!paint({900, 900}, dawn, true, 5).save(directory + "/models/painted_landscapes.png"))
        giveUp(directory);
}
