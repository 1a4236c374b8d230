#include "model/FileCategory.h"

#include <QChar>

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace tessarine {

namespace {

// Extensions per category, in case order. Where an extension could belong to two categories it
// is listed only under the later one (pdf, ai, ts, key, sql, dmg, pkg, apk, ipa, msi), and the
// table is built so that a later category would win anyway.
constexpr std::pair<FileCategory, std::string_view> extensionLists[] = {
    {FileCategory::images,
     "jpg jpeg png gif bmp tiff tif webp heic heif ico cur dds exr hdr pbm pgm ppm pnm "
     "pcx tga sgi rgb rgba raw cr2 cr3 nef nrw arw srf sr2 orf rw2 pef dng raf erf kdc "
     "dcr mrw 3fr mef mos x3f srw svg svgz eps icns apng avif jxl"},
    {FileCategory::videos,
     "mp4 m4v mov avi mkv wmv flv webm mpeg mpg m2v 3gp 3g2 mxf ogv vob mts m2ts divx "
     "xvid rm rmvb asf m4p hevc h264 h265 av1 prores f4v swf gifv"},
    {FileCategory::audio,
     "mp3 m4a aac wav wave flac ogg oga wma aiff aif aifc opus mid midi alac ape wv "
     "tta tak dsd dsf dff au snd ra ram ac3 dts mka mod s3m xm it med amr awb spx gsm "
     "caf m4b m4r"},
    {FileCategory::documents,
     "txt text rtf rtfd md markdown mdown rst asciidoc adoc org tex latex doc docx "
     "docm dot dotx dotm xls xlsx xlsm xlt xltx xltm xlsb ppt pptx pptm pot potx potm "
     "pps ppsx pages numbers keynote odt ods odp odg odf pdf epub mobi azw azw3 fb2 "
     "djvu cbr cbz ps xps oxps hwp wps wpd abw enex opml"},
    {FileCategory::code,
     "html htm xhtml css scss sass less styl js jsx ts tsx mjs cjs vue svelte c h cpp "
     "cc cxx hpp hxx hh m mm swift rs go zig java kt kts scala groovy clj cljs cs fs "
     "vb py pyw pyx pxd pxi rb erb php phtml pl pm perl lua r jl sh bash zsh fish ps1 "
     "psm1 bat cmd dart hs lhs ml mli elm ex exs erl hrl tf hcl nix plsql psql mysql "
     "asm s coffee litcoffee v vhdl sv d nim cr crystal rkt scm lisp el"},
    {FileCategory::archives,
     "zip rar 7z tar gz gzip bz2 bzip2 xz lz lzma lz4 zst zstd tgz tbz2 txz tlz deb "
     "rpm cab iso img toast vcd arc arj lzh z"},
    {FileCategory::applications,
     "app dmg pkg mpkg exe msi dll sys com scr appimage flatpak snap apk aab ipa xap "
     "jar war ear"},
    {FileCategory::system,
     "plist entitlements xcconfig xib storyboard xcassets xcworkspace xcodeproj "
     "xcplayground dylib framework bundle kext ini cfg conf config properties env "
     "gitignore gitattributes gitmodules editorconfig makefile cmake gradle podfile "
     "gemfile dockerfile containerfile lock lockb log logs pem crt cer key p12 pfx jks"},
    {FileCategory::data,
     "json json5 jsonc jsonl ndjson xml xsd xsl xslt dtd yaml yml toml csv tsv psv sql "
     "sqlite sqlite3 db mdb accdb realm fdb protobuf proto avro parquet orc msgpack "
     "bson graphql gql ics vcf vcard"},
    {FileCategory::fonts, "ttf otf woff woff2 eot ttc dfont pfb pfm afm fon fnt"},
    {FileCategory::design,
     "obj fbx gltf glb dae 3ds blend stl ply abc usd usda usdc usdz ma mb max c4d lwo "
     "lws psd psb xcf kra clip sketch fig xd afdesign afphoto indd idml ai dwg dxf "
     "step stp iges igs mtl mat sbsar"},
};

// The keys are views into the lists above, which live for the whole program.
using ExtensionTable = std::unordered_map<std::string_view, FileCategory>;

ExtensionTable buildExtensionTable() {
    ExtensionTable table;
    table.reserve(512);
    for (const auto& [category, list] : extensionLists) {
        std::size_t start = 0;
        while (start < list.size()) {
            const std::size_t end = std::min(list.find(' ', start), list.size());
            table.insert_or_assign(list.substr(start, end - start), category);
            start = end + 1;
        }
    }
    return table;
}

// Built on first use; C++ guarantees a single, thread-safe initialisation.
const ExtensionTable& extensionTable() {
    static const ExtensionTable table = buildExtensionTable();
    return table;
}

// Every extension in the table is ASCII and at most this long, so anything longer is unknown.
constexpr qsizetype longestExtension = 16;

bool isTrimmedSpace(QChar c) {
    return c == u'\t' || c.category() == QChar::Separator_Space;
}

QStringView trimmedSpaces(QStringView text) {
    while (!text.isEmpty() && isTrimmedSpace(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && isTrimmedSpace(text.back()))
        text.chop(1);
    return text;
}

bool isAscii(QStringView text) {
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() <= 0x7F; });
}

// Lowercases into a stack buffer so that the per-item lookup allocates nothing.
FileCategory lookUpAscii(QStringView text) {
    if (text.size() > longestExtension)
        return FileCategory::other;
    char key[longestExtension];
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t c = text[i].unicode();
        key[i] = char(c >= u'A' && c <= u'Z' ? c + (u'a' - u'A') : c);
    }
    const ExtensionTable& table = extensionTable();
    const auto found = table.find(std::string_view(key, std::size_t(text.size())));
    return found == table.end() ? FileCategory::other : found->second;
}

} // namespace

FileCategory categoryForExtension(QStringView extension) {
    const QStringView trimmed = trimmedSpaces(extension);
    if (isAscii(trimmed))
        return lookUpAscii(trimmed);
    // Rare: full Unicode lowercasing can turn non-ASCII text into a known extension (the Kelvin
    // sign lowercases to k), so only such input takes the allocating route.
    const QString lowered = extension.toString().toLower();
    const QStringView loweredTrimmed = trimmedSpaces(lowered);
    return isAscii(loweredTrimmed) ? lookUpAscii(loweredTrimmed) : FileCategory::other;
}

QStringList knownExtensions(FileCategory category) {
    QStringList extensions;
    for (const auto& [extension, owner] : extensionTable()) {
        if (owner == category)
            extensions.append(QString::fromLatin1(extension.data(), qsizetype(extension.size())));
    }
    extensions.sort();
    return extensions;
}

} // namespace tessarine
