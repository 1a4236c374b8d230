#include "SymbolTable.h"

#include <QHash>

namespace tessarine {

namespace {

// Material's "help_outline": unmistakably a placeholder, never a real symbol of the app.
constexpr char16_t unknownSymbol = 0xe8fd;

// System symbol name -> Material Icons codepoint (the Material name follows each entry).
const QHash<QString, char16_t>& table() {
    static const QHash<QString, char16_t> symbols{
        {QStringLiteral("app.badge"), 0xe5c3},                          // apps
        {QStringLiteral("archivebox"), 0xe149},                         // archive
        {QStringLiteral("archivebox.fill"), 0xe149},                    // archive
        {QStringLiteral("arrow.3.trianglepath"), 0xe760},               // recycling
        {QStringLiteral("arrow.clockwise"), 0xe5d5},                    // refresh
        {QStringLiteral("arrow.down"), 0xe5db},                         // arrow_downward
        {QStringLiteral("arrow.down.circle.fill"), 0xf181},             // arrow_circle_down
        {QStringLiteral("arrow.down.right"), 0xf1e4},                   // south_east
        {QStringLiteral("arrow.down.right.and.arrow.up.left"), 0xf1cf}, // close_fullscreen
        {QStringLiteral("arrow.down.right.circle.fill"), 0xe5da},       // subdirectory_arrow_right
        {QStringLiteral("arrow.left.arrow.right"), 0xe915},             // compare_arrows
        {QStringLiteral("arrow.up"), 0xe5d8},                           // arrow_upward
        {QStringLiteral("arrow.up.arrow.down"), 0xe8d5},                // swap_vert
        {QStringLiteral("arrow.up.right.square"), 0xe89e},              // open_in_new
        {QStringLiteral("arrow.uturn.backward"), 0xe166},               // undo
        {QStringLiteral("bolt.fill"), 0xea0b},                          // bolt
        {QStringLiteral("chart.bar.doc.horizontal"), 0xef3e},           // analytics
        {QStringLiteral("chart.bar.fill"), 0xe26b},                     // bar_chart
        {QStringLiteral("chart.line.uptrend.xyaxis"), 0xe8e5},          // trending_up
        {QStringLiteral("chart.pie"), 0xe6c4},                          // pie_chart
        {QStringLiteral("chart.pie.fill"), 0xe6c4},                     // pie_chart
        {QStringLiteral("checkmark"), 0xe5ca},                          // check
        {QStringLiteral("checkmark.circle"), 0xe92d},                   // check_circle_outline
        {QStringLiteral("checkmark.circle.fill"), 0xe86c},              // check_circle
        {QStringLiteral("chevron.down"), 0xe5cf},                       // expand_more
        {QStringLiteral("chevron.left"), 0xe5cb},                       // chevron_left
        {QStringLiteral("chevron.left.forwardslash.chevron.right"), 0xe86f}, // code
        {QStringLiteral("chevron.right"), 0xe5cc},                           // chevron_right
        {QStringLiteral("chevron.up"), 0xe5ce},                              // expand_less
        {QStringLiteral("circle"), 0xe836},                        // radio_button_unchecked
        {QStringLiteral("clock"), 0xe8b5},                         // schedule
        {QStringLiteral("clock.arrow.circlepath"), 0xe889},        // history
        {QStringLiteral("clock.fill"), 0xe8b5},                    // schedule
        {QStringLiteral("command"), 0xeae7},                       // keyboard_command_key
        {QStringLiteral("cube"), 0xe9fe},                          // view_in_ar
        {QStringLiteral("cursorarrow.click"), 0xe323},             // mouse
        {QStringLiteral("cursorarrow.click.2"), 0xe762},           // ads_click
        {QStringLiteral("cylinder"), 0xf8ee},                      // dataset
        {QStringLiteral("doc"), 0xe24d},                           // insert_drive_file
        {QStringLiteral("doc.badge.ellipsis"), 0xef64},            // pending
        {QStringLiteral("doc.fill"), 0xe24d},                      // insert_drive_file
        {QStringLiteral("doc.on.doc"), 0xe173},                    // file_copy
        {QStringLiteral("doc.text"), 0xe873},                      // description
        {QStringLiteral("doc.text.magnifyingglass"), 0xe880},      // find_in_page
        {QStringLiteral("exclamationmark.triangle"), 0xe002},      // warning
        {QStringLiteral("exclamationmark.triangle.fill"), 0xe002}, // warning
        {QStringLiteral("eye"), 0xe8f4},                           // visibility
        {QStringLiteral("eye.fill"), 0xe8f4},                      // visibility
        {QStringLiteral("eye.slash"), 0xe8f5},                     // visibility_off
        {QStringLiteral("film.fill"), 0xe02c},                     // movie
        {QStringLiteral("film.stack"), 0xe04a},                    // video_library
        {QStringLiteral("folder"), 0xe2c8},                        // folder_open
        {QStringLiteral("folder.badge.gearshape"), 0xe617},        // folder_special
        {QStringLiteral("folder.badge.minus"), 0xeb34},            // folder_delete
        {QStringLiteral("folder.badge.plus"), 0xe2cc},             // create_new_folder
        {QStringLiteral("folder.badge.questionmark"), 0xeb83},     // folder_off
        {QStringLiteral("folder.fill"), 0xe2c7},                   // folder
        {QStringLiteral("gearshape"), 0xe8b8},                     // settings
        {QStringLiteral("gearshape.2.fill"), 0xf05e},              // settings_suggest
        {QStringLiteral("hand.draw.fill"), 0xe925},                // pan_tool
        {QStringLiteral("hand.point.up.left.fill"), 0xe913},       // touch_app
        {QStringLiteral("hourglass"), 0xea5c},                     // hourglass_bottom
        {QStringLiteral("house.fill"), 0xe88a},                    // home
        {QStringLiteral("info.circle"), 0xe88f},                   // info_outline
        {QStringLiteral("info.circle.fill"), 0xe88e},              // info
        {QStringLiteral("internaldrive"), 0xe1db},                 // storage
        {QStringLiteral("internaldrive.fill"), 0xe1db},            // storage
        {QStringLiteral("keyboard.fill"), 0xe312},                 // keyboard
        {QStringLiteral("lightbulb.fill"), 0xe0f0},                // lightbulb
        {QStringLiteral("list.bullet.rectangle"), 0xe0ee},         // list_alt
        {QStringLiteral("list.bullet.rectangle.fill"), 0xe0ee},    // list_alt
        {QStringLiteral("location"), 0xe569},                      // near_me
        {QStringLiteral("location.fill"), 0xe569},                 // near_me
        {QStringLiteral("macwindow"), 0xe069},                     // web_asset
        {QStringLiteral("magnifyingglass"), 0xe8b6},               // search
        {QStringLiteral("music.note"), 0xe405},                    // music_note
        {QStringLiteral("paintpalette.fill"), 0xe40a},             // palette
        {QStringLiteral("percent"), 0xeb58},                       // percent
        {QStringLiteral("photo.fill"), 0xe410},                    // photo
        {QStringLiteral("photo.stack"), 0xe413},                   // photo_library
        {QStringLiteral("play.circle.fill"), 0xe1c4},              // play_circle
        {QStringLiteral("plus"), 0xe145},                          // add
        {QStringLiteral("questionmark.folder"), 0xf1c0},           // help_center
        {QStringLiteral("rectangle.grid.1x2.fill"), 0xe8e9},       // view_agenda
        {QStringLiteral("shippingbox"), 0xe1a1},                   // inventory_2
        {QStringLiteral("sidebar.left"), 0xf114},                  // view_sidebar
        {QStringLiteral("speedometer"), 0xe9e4},                   // speed
        {QStringLiteral("square.and.arrow.down"), 0xe2c4},         // file_download
        {QStringLiteral("square.and.arrow.up"), 0xe6b8},           // ios_share
        {QStringLiteral("square.grid.2x2"), 0xe9b0},               // grid_view
        {QStringLiteral("square.grid.2x2.fill"), 0xe871},          // dashboard
        {QStringLiteral("star.fill"), 0xe838},                     // star
        {QStringLiteral("tablecells.fill"), 0xe265},               // table_chart
        {QStringLiteral("textformat"), 0xe262},                    // text_fields
        {QStringLiteral("trash"), 0xe872},                         // delete
        {QStringLiteral("trash.fill"), 0xe872},                    // delete
        {QStringLiteral("waveform"), 0xe1b8},                      // graphic_eq
        {QStringLiteral("xmark"), 0xe5cd},                         // close
        {QStringLiteral("xmark.circle.fill"), 0xe5c9},             // cancel
    };
    return symbols;
}

} // namespace

SymbolTable::SymbolTable(QObject* parent)
    : QObject(parent) {}

QString SymbolTable::glyph(const QString& symbolName) const {
    return QString(QChar(codepoint(symbolName)));
}

// Found by family through the platform's font database: the system package installs it, or a
// build that embeds the fonts registers it at start (see registerEmbeddedFonts).
QString SymbolTable::fontFamily() {
    return QStringLiteral("Material Icons");
}

QStringList SymbolTable::symbolNames() {
    return table().keys();
}

char16_t SymbolTable::codepoint(const QString& symbolName) {
    return table().value(symbolName, unknownSymbol);
}

char16_t SymbolTable::fallbackCodepoint() {
    return unknownSymbol;
}

} // namespace tessarine
