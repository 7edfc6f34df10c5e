#include "app/services/ThemePalettes.h"

#include <QBrush>
#include <QColor>

namespace {

enum class ShadeChange { None, Lighter150, Darker200 };

// A colour of the table, used as it is or made lighter or darker; a default-constructed one leaves its brush
// unchanged.
struct Shade {
    constexpr Shade() = default;
    constexpr Shade(QRgb value, ShadeChange by = ShadeChange::None) : rgb(value), change(by), isSet(true) {}

    QRgb rgb = 0;
    ShadeChange change = ShadeChange::None;
    bool isSet = false;
};

constexpr Shade lighter150(QRgb rgb) {
    return {rgb, ShadeChange::Lighter150};
}

constexpr Shade darker200(QRgb rgb) {
    return {rgb, ShadeChange::Darker200};
}

struct ThemeColors {
    Shade window{};
    Shade windowText{};
    Shade base{};
    Shade alternateBase{};
    Shade toolTipBase{};
    Shade toolTipText{};
    Shade text{};
    Shade button{};
    Shade buttonText{};
    Shade brightText{};
    Shade mid{};
    Shade link{};
    Shade highlight{};
    Shade highlightedText{};
    Shade placeholderText{};
    Shade activeButton{};
    Shade disabledButtonText{};
    Shade disabledWindowText{};
    Shade disabledText{};
    Shade disabledLight{};
    Shade light{};
};

struct ThemeBrush {
    QPalette::ColorGroup group;
    QPalette::ColorRole role;
    Shade ThemeColors::* shade;
};

// The order counts: setting a role for all groups overwrites what was set for one of them.
constexpr ThemeBrush themeBrushes[] = {
    {QPalette::All, QPalette::Window, &ThemeColors::window},
    {QPalette::All, QPalette::WindowText, &ThemeColors::windowText},
    {QPalette::All, QPalette::Base, &ThemeColors::base},
    {QPalette::All, QPalette::AlternateBase, &ThemeColors::alternateBase},
    {QPalette::All, QPalette::ToolTipBase, &ThemeColors::toolTipBase},
    {QPalette::All, QPalette::ToolTipText, &ThemeColors::toolTipText},
    {QPalette::All, QPalette::Text, &ThemeColors::text},
    {QPalette::All, QPalette::Button, &ThemeColors::button},
    {QPalette::All, QPalette::ButtonText, &ThemeColors::buttonText},
    {QPalette::All, QPalette::BrightText, &ThemeColors::brightText},
    {QPalette::All, QPalette::Mid, &ThemeColors::mid},
    {QPalette::All, QPalette::Link, &ThemeColors::link},
    {QPalette::All, QPalette::Highlight, &ThemeColors::highlight},
    {QPalette::All, QPalette::HighlightedText, &ThemeColors::highlightedText},
    {QPalette::All, QPalette::PlaceholderText, &ThemeColors::placeholderText},
    {QPalette::Active, QPalette::Button, &ThemeColors::activeButton},
    {QPalette::Disabled, QPalette::ButtonText, &ThemeColors::disabledButtonText},
    {QPalette::Disabled, QPalette::WindowText, &ThemeColors::disabledWindowText},
    {QPalette::Disabled, QPalette::Text, &ThemeColors::disabledText},
    {QPalette::Disabled, QPalette::Light, &ThemeColors::disabledLight},
    {QPalette::All, QPalette::Light, &ThemeColors::light},
};

// Near black; these themes differ only in their highlight.
constexpr ThemeColors jewelColors(QRgb highlight) {
    return {.window = 0x121212,
            .windowText = 0xffffff,
            .base = lighter150(0x121212),
            .alternateBase = lighter150(0x121212),
            .toolTipBase = 0x121212,
            .toolTipText = 0xffffff,
            .text = 0xffffff,
            .button = 0x121212,
            .buttonText = 0xffffff,
            .link = 0xffffff,
            .highlight = highlight,
            .highlightedText = 0xffffff,
            .activeButton = 0x121212,
            .disabledButtonText = 0x808080,
            .disabledWindowText = 0x808080,
            .disabledText = 0x808080,
            .disabledLight = lighter150(0x121212)};
}

constexpr ThemeColors darkFusionColors(QRgb toolTipBase, QRgb highlight) {
    return {.window = 0x353535,
            .windowText = 0xffffff,
            .base = 0x191919,
            .alternateBase = 0x353535,
            .toolTipBase = toolTipBase,
            .toolTipText = 0xffffff,
            .text = 0xffffff,
            .button = 0x353535,
            .buttonText = 0xffffff,
            .link = 0xc6eeff,
            .highlight = highlight,
            .highlightedText = 0xffffff,
            .placeholderText = darker200(0xffffff),
            .activeButton = 0x353535,
            .disabledButtonText = 0x808080,
            .disabledWindowText = 0x808080,
            .disabledText = 0x808080,
            .disabledLight = 0x353535};
}

struct NamedThemeColors {
    Themes::Theme theme;
    ThemeColors colors;
};

constexpr NamedThemeColors themeColors[] = {
    {Themes::DARK,
     {.window = 0x353535,
      .windowText = 0xffffff,
      .base = 0x191919,
      .alternateBase = 0x353535,
      .toolTipBase = 0x2a82da,
      .toolTipText = 0xffffff,
      .text = 0xffffff,
      .button = 0x353535,
      .buttonText = 0xffffff,
      .link = 0x2a82da,
      .highlight = 0x2a82da,
      .highlightedText = 0x000000,
      .activeButton = darker200(0x808080),
      .disabledButtonText = 0x808080,
      .disabledWindowText = 0x808080,
      .disabledText = 0x808080,
      .disabledLight = 0x353535,
      .light = 0x353535}},
    {Themes::EMERALD, jewelColors(0x0f513b)},
    {Themes::SAPPHIRE, jewelColors(0x2023cc)},
    {Themes::RUBY, jewelColors(0xac151f)},
    {Themes::COBALTSKY,
     {.window = 0x1d2951,
      .windowText = 0xffffff,
      .base = lighter150(0x1d2951),
      .alternateBase = 0x111e6c,
      .toolTipBase = 0x111e6c,
      .toolTipText = 0xffffff,
      .text = 0xffffff,
      .button = 0x192082,
      .buttonText = 0xffffff,
      .link = 0x00caff,
      .highlight = 0x245dda,
      .highlightedText = 0xffffff,
      .activeButton = 0x192082,
      .disabledButtonText = 0x969696,
      .disabledWindowText = 0x969696,
      .disabledText = 0x969696,
      .disabledLight = 0x969696}},
    {Themes::VIOLETANGELPURPLE,
     {.window = 0x321946,
      .windowText = 0xffffff,
      .base = 0x6e1e7d,
      .alternateBase = 0x321946,
      .toolTipBase = 0x6e1e7d,
      .toolTipText = 0xffffff,
      .text = 0xffffff,
      .button = darker200(0x6e1e7d),
      .buttonText = 0xffffff,
      .link = lighter150(0x5a1e69),
      .highlight = lighter150(0x5a1e69),
      .highlightedText = 0xffffff,
      .activeButton = darker200(0x6e1e7d),
      .disabledButtonText = lighter150(0x5a1e69),
      .disabledWindowText = lighter150(0x5a1e69),
      .disabledText = darker200(0x5a1e69),
      .disabledLight = 0x6e1e7d}},
    {Themes::SCARLETDEVILRED,
     {.window = 0x502d45,
      .windowText = 0xffffff,
      .base = 0x782d45,
      .alternateBase = 0x502d45,
      .toolTipBase = 0x502d45,
      .toolTipText = 0xffffff,
      .text = 0xffffff,
      .button = darker200(0x782d45),
      .buttonText = 0xffffff,
      .link = 0xc82d45,
      .highlight = 0xc82d45,
      .highlightedText = 0xffffff,
      .activeButton = darker200(0x782d45),
      .disabledButtonText = 0xc82d45,
      .disabledWindowText = 0xc82d45,
      .disabledText = 0xc82d45,
      .disabledLight = 0x502d45}},
    {Themes::PRUKLESBLUEPALETTE,
     {.window = lighter150(0x5078c8),
      .windowText = 0x232323,
      .base = 0x829bf1,
      .alternateBase = lighter150(0x5078c8),
      .toolTipBase = 0x5078c8,
      .toolTipText = 0xffffff,
      .text = 0x232323,
      .button = 0x6a9cff,
      .buttonText = 0x232323,
      .link = 0x4961b1,
      .highlight = 0xffffff,
      .highlightedText = 0x232323,
      .activeButton = 0x6a9cff,
      .disabledButtonText = 0x4961b1,
      .disabledWindowText = 0x4961b1,
      .disabledText = 0x4961b1,
      .disabledLight = 0x4961b1}},
    {Themes::PIZZABROWN,
     {.window = 0xe9bb93,
      .windowText = 0x000000,
      .base = 0xf8e6d5,
      .alternateBase = 0xf8c058,
      .toolTipBase = 0xf8e6d5,
      .toolTipText = 0x000000,
      .text = 0x000000,
      .button = 0xf8c058,
      .buttonText = 0x000000,
      .link = darker200(0xbc643c),
      .highlight = 0xbc643c,
      .highlightedText = 0xffffff,
      .activeButton = 0xf8c058,
      .disabledButtonText = darker200(0x808080),
      .disabledWindowText = darker200(0x808080),
      .disabledText = 0xa0a0a4,
      .disabledLight = lighter150(0x808080)}},
    {Themes::BABYPASTEL,
     {.window = 0xffaec9,
      .windowText = 0x191919,
      .base = 0xffe6ff,
      .alternateBase = 0xdde1ef,
      .toolTipBase = 0xffaec9,
      .toolTipText = 0xffe6ff,
      .text = 0x191919,
      .button = 0xffaec9,
      .buttonText = 0x191919,
      .link = 0x191919,
      .highlight = 0xff7f79,
      .highlightedText = 0x191919,
      .activeButton = 0xffaec9,
      .disabledButtonText = 0xc84b84,
      .disabledWindowText = 0xc84b84,
      .disabledText = 0xc84b84,
      .disabledLight = 0x969696}},
    {Themes::UNTOUCHEDLAGOON,
     {.window = 0xa0beb9,
      .windowText = lighter150(0x191919),
      .base = 0xa0b4be,
      .alternateBase = 0xa0beb9,
      .toolTipBase = 0xa0beb9,
      .toolTipText = 0xa0b4be,
      .text = 0x191919,
      .button = 0xa0beb9,
      .buttonText = 0x191919,
      .link = lighter150(0x191919),
      .highlight = 0x008080,
      .highlightedText = lighter150(0xa0b4be),
      .activeButton = 0xa0beb9,
      .disabledButtonText = 0x004d4d,
      .disabledWindowText = lighter150(0x004d4d),
      .disabledText = lighter150(0x004d4d),
      .disabledLight = 0xa0beb9}},
    {Themes::GREYMATTER,
     {.window = 0x2e3440,
      .windowText = 0xffffff,
      .base = 0x3b4252,
      .alternateBase = 0x2e3440,
      .toolTipBase = 0x2e3440,
      .toolTipText = 0xffffff,
      .text = 0xffffff,
      .button = 0x3b4252,
      .buttonText = 0xffffff,
      .link = 0xc6eeff,
      .highlight = lighter150(0x3b4252),
      .highlightedText = 0xffffff,
      .placeholderText = darker200(0xffffff),
      .activeButton = 0x3b4252,
      .disabledButtonText = lighter150(0x6f6f6f),
      .disabledWindowText = lighter150(0x6f6f6f),
      .disabledText = lighter150(0x6f6f6f),
      .disabledLight = 0x2e3440}},
    {Themes::DARKFUSIONBLUE, darkFusionColors(0x0058d0, 0x0058d0)},
    {Themes::DARKFUSION, darkFusionColors(0x353535, 0x4b4b4b)},
    {Themes::PLASTIQUE,
     {.window = 0xffffff,
      .windowText = 0x000000,
      .base = 0xffffff,
      .text = 0x000000,
      .button = 0xf0f0f0,
      .buttonText = 0x000000,
      .brightText = 0x000000,
      .mid = 0x4b4b4b,
      .highlight = 0x000064,
      .highlightedText = 0xffffff}},
};

QColor shadeColor(const Shade& shade) {
    const QColor color = QColor::fromRgb(shade.rgb);
    switch (shade.change) {
    case ShadeChange::Lighter150:
        return color.lighter(150);
    case ShadeChange::Darker200:
        return color.darker(200);
    case ShadeChange::None:
        break;
    }
    return color;
}

QPalette paletteOf(const ThemeColors& colors) {
    QPalette palette;
    for (const ThemeBrush& brush : themeBrushes) {
        const Shade& shade = colors.*brush.shade;
        if (shade.isSet)
            palette.setBrush(brush.group, brush.role, QBrush(shadeColor(shade)));
    }
    // The style's own placeholder colour is near black, which cannot be read on a dark edit.
    QColor placeholder = palette.color(QPalette::Text);
    if (!colors.placeholderText.isSet &&
        placeholder.lightness() > palette.color(QPalette::Base).lightness()) {
        placeholder.setAlphaF(0.5F);
        palette.setColor(QPalette::PlaceholderText, placeholder);
    }
    return palette;
}

} // namespace

QPalette themePalette(Themes::Theme theme) {
    for (const NamedThemeColors& entry : themeColors) {
        if (entry.theme == theme)
            return paletteOf(entry.colors);
    }
    return {};
}
