#include "app/services/ImageFile.h"
#include "app/services/Settings.h"
#include "app/services/SettingsKeys.h"
#include "batch/Arguments.h"
#include "batch/Commands.h"
#include "batch/Console.h"
#include "batch/Outputs.h"
#include "batch/Picture.h"
#include "batch/Run.h"
#include "batch/SizeOption.h"
#include "catalogue/MediaFormats.h"
#include "imaging/BatchOutput.h"
#include "imaging/EffectList.h"
#include "imaging/FilterChain.h"
#include "imaging/ProfileStream.h"
#include "imaging/ResizeGeometry.h"

#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

// Nothing where an image stays as it is; a null image where its new size is none.
using ImageChange = std::function<std::optional<QImage>(const QImage& image)>;

FileResult changeImage(const BatchFile& file, const Outputs& outputs, int quality,
                       const ImageChange& change) {
    // Before the image is decoded, which is most of the work.
    const Outputs::Target target = outputs.target(file);
    if (target.refusal)
        return *target.refusal;
    QString error;
    const QImage image = readPicture(file.path, error);
    if (image.isNull())
        return FileResult::failed(error);
    const std::optional<QImage> changed = change(image);
    if (!changed)
        return FileResult::skipped(Batch::tr("nothing to do"));
    if (changed->isNull())
        return FileResult::failed(Batch::tr("the new size is empty or too large"));
    const QByteArray bytes = encodedImageFile(*changed, target.path, batchImageOptions(quality), &error);
    if (!error.isEmpty())
        return FileResult::failed(Batch::tr("%1: %2").arg(target.path, error));
    return Outputs::write(target, bytes);
}

void addImageOptions(Arguments& arguments) {
    arguments.add(u"quality"_s, Batch::tr("Quality of the images from 1 to 100."), u"N"_s, u"100"_s);
    addOutputOptions(arguments, true);
}

int runOverImages(Arguments& arguments, const ImageChange& change) {
    const RunOptions run = runOptions(arguments);
    const int quality = arguments.wholeNumber(u"quality"_s, 1, 100);
    const OutputOptions output = outputOptions(arguments);
    if (arguments.isRejected())
        return arguments.wrongUsage();
    if (const QString error = prepareOutput(output); !error.isEmpty()) {
        console::complain(output.directory, error);
        return SomeFailed;
    }
    // Without the results of an earlier run, where these lie below the sources.
    const FileList files = listFiles(arguments, SuffixMatcher(imageNameFilters()), output.directory);
    if (arguments.isRejected())
        return arguments.wrongUsage();
    raiseImageAllocationLimit();
    const Outputs outputs(output, files);
    return runOverFiles(files, run,
                        [&](const BatchFile& file) { return changeImage(file, outputs, quality, change); });
}

// --- resize --------------------------------------------------------------------------------------

ResizeOptions resizeOptions(Arguments& arguments) {
    constexpr double largest = std::numeric_limits<int>::max();
    ResizeOptions options;
    const QStringList modes{u"size"_s, u"scale"_s, u"ratio"_s};
    const auto isSet = [&](const QString& mode) { return arguments.isSet(mode); };
    if (std::ranges::count_if(modes, isSet) != 1) {
        arguments.reject(Batch::tr("one of --size, --scale and --ratio is needed"));
        return options;
    }
    if (isSet(modes.at(0))) {
        options.mode = ResizeMode::SpecificSize;
        options.specificSize = sizeOption(arguments);
    } else if (isSet(modes.at(1))) {
        options.mode = ResizeMode::Scale;
        // The lowest positive number: 0 is no factor.
        options.scale = arguments.number(modes.at(1), std::numeric_limits<double>::min(), largest);
    } else {
        options.mode = ResizeMode::AspectRatio;
        options.aspectRatio = arguments.number(modes.at(2), std::numeric_limits<double>::min(), largest);
    }
    // Both lists have the order of the enumerators. A rejected word ends the run later.
    options.aspectRatioMode = static_cast<Qt::AspectRatioMode>(
        std::max(0, arguments.choice(u"aspect"_s, {u"ignore"_s, u"keep"_s, u"expand"_s})));
    options.transformationMode = static_cast<Qt::TransformationMode>(
        std::max(0, arguments.choice(u"transformation"_s, {u"fast"_s, u"smooth"_s})));
    return options;
}

// --- effects -------------------------------------------------------------------------------------

// By default the file that the window keeps. Both programs lie in one directory.
QString settingsPath(const Arguments& arguments) {
    if (arguments.isSet(u"settings"_s))
        return arguments.value(u"settings"_s);
    const QString directory =
        Settings::usualLocation() == Settings::AppDirLocation
            ? QCoreApplication::applicationDirPath()
            : QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/Tessarine"_L1;
    return directory + "/settings.data"_L1;
}

QList<FilterStep> profileSteps(Arguments& arguments) {
    const QString path = settingsPath(arguments);
    const QFileInfo info(path);
    // QSettings takes a file that it cannot read for an empty one.
    if (!info.isFile() || !info.isReadable()) {
        arguments.reject(Batch::tr("%1: no settings file that can be read").arg(shownPath(path)));
        return {};
    }
    // A profile holds a list of this type.
    registerEffectListType();
    const QHash<QString, QVariant> table = Settings::storedTable(QSettings(path, QSettings::IniFormat));
    const ProfileStreamContents contents =
        readProfileStream(table.value(keys::filterProfiles.key).toByteArray());
    if (contents.status != QDataStream::Ok) {
        arguments.reject(Batch::tr("%1: its profiles are missing or broken").arg(shownPath(path)));
        return {};
    }
    const QString name = arguments.value(u"profile"_s);
    const auto found = std::ranges::find(contents.profiles, name, &Profile::name);
    if (found == contents.profiles.end()) {
        QStringList names;
        for (const Profile& profile : contents.profiles)
            names.append(profile.name());
        arguments.reject(Batch::tr("%1: no profile \"%2\" among %3")
                             .arg(shownPath(path), name, shownPath(names.join(", "_L1))));
        return {};
    }
    return filterChain(effectListFromVariant(found->option(effectListOption)));
}

FilterStep filterStep(Arguments& arguments, const QString& text) {
    const QString name = text.section(u'=', 0, 0);
    FilterStep step{.type = ImageFilters::filterType(name)};
    const std::optional<FilterRange> range = filterRange(step.type);
    if (range) {
        bool ok = false;
        step.value = text.section(u'=', 1).toInt(&ok);
        if (!ok || step.value < range->minimum || step.value > range->maximum)
            arguments.reject(
                Batch::tr("--filter %1 takes a whole number from %2 to %3, as in %1=%3")
                    .arg(name, QString::number(range->minimum), QString::number(range->maximum)));
    } else if (step.type == ImageFilters::Invalid || text.contains(u'=')) {
        arguments.reject(Batch::tr("--filter takes one of %1, with its number but for the last, not \"%2\"")
                             .arg(ImageFilters().filterNames().join(", "_L1), text));
    }
    return step;
}

QList<FilterStep> filterSteps(Arguments& arguments) {
    const QStringList filters = arguments.values(u"filter"_s);
    if (arguments.isSet(u"profile"_s) == !filters.isEmpty()) {
        arguments.reject(Batch::tr("either --profile or --filter is needed"));
        return {};
    }
    if (filters.isEmpty())
        return profileSteps(arguments);
    QList<FilterStep> steps;
    for (const QString& filter : filters)
        steps.append(filterStep(arguments, filter));
    return steps;
}

std::optional<QImage> withEffects(const QImage& image, const QList<FilterStep>& steps) {
    QImage work = image;
    bool applied = false;
    for (const FilterStep& step : steps)
        work = filteredImage(work, step, &applied);
    // An image that no filter changes is not written again with losses.
    return applied ? std::optional(work) : std::nullopt;
}

} // namespace

int resizeCommand(const QStringList& words) {
    Arguments arguments(u"resize"_s, Batch::tr("Resizes images."), u"FILE..."_s);
    arguments.add(u"size"_s, Batch::tr("The new size; -1 lets one side follow the other."), u"WxH"_s);
    arguments.add(u"scale"_s, Batch::tr("Multiplies both sides by F."), u"F"_s);
    arguments.add(u"ratio"_s, Batch::tr("Cuts from the middle: as high as the shorter side times R."),
                  u"R"_s);
    arguments.add(u"aspect"_s, Batch::tr("What becomes of the aspect ratio: keep, expand or ignore."),
                  u"MODE"_s, u"keep"_s);
    arguments.add(u"transformation"_s, Batch::tr("How pixels are scaled: smooth or fast."), u"MODE"_s,
                  u"smooth"_s);
    addImageOptions(arguments);
    if (const std::optional<int> code = parseRun(arguments, words))
        return *code;
    const ResizeOptions options = resizeOptions(arguments);
    return runOverImages(arguments, [&](const QImage& image) { return resizedImage(image, options); });
}

int effectsCommand(const QStringList& words) {
    Arguments arguments(u"effects"_s, Batch::tr("Runs a chain of filters over images."), u"FILE..."_s);
    arguments.add(u"profile"_s, Batch::tr("Takes the chain of a profile of the window."), u"NAME"_s);
    arguments.add(u"settings"_s, Batch::tr("Takes the profile out of FILE, by default the window's."),
                  u"FILE"_s);
    arguments.add(u"filter"_s,
                  Batch::tr("A filter of the chain, as in Brightness=20; given again for the next."),
                  u"NAME=NUMBER"_s);
    addImageOptions(arguments);
    if (const std::optional<int> code = parseRun(arguments, words))
        return *code;
    const QList<FilterStep> steps = filterSteps(arguments);
    return runOverImages(arguments, [&](const QImage& image) { return withEffects(image, steps); });
}
