#include "driver/pages/document_settings.h"

#include "host/app_profile_interface.h"
#include "platform/files/failure_lines.h"
#include "platform/files/file_failure.h"
#include "platform/files/sys_directory.h"
#include "settings/ini_file.h"
#include "settings/register_dynamic.h"

namespace quillmark {

namespace {

constexpr std::size_t iniBufferSize = 4096;
constexpr const char* iniSection = "Quillmark";

RegEntry readHtml(const RegisterCache& settings, const char* name) {
    return settings.read(htmlGroup, name, defaultValue(htmlGroup, name));
}

OrxString textOf(const RegEntry& entry) {
    return entry.asString(TextEncoding::current());
}

RegEntry readDirectly(const char* name) {
    return RegisterDynamic().read(settingsGroup, name, defaultValue(settingsGroup, name));
}

OrxString iniFileName() {
    const AppProfileInterface* const profile = AppProfileInterface::getInterface();
    if (profile == nullptr) {
        return "Veltrano.ini";
    }
    const TextEncoding& encoding = TextEncoding::current();
    const OrxString path = profile->profilePath();
    return encoding.recoded(path, encoding.ofText(path));
}

}  // namespace

const TextEncoding& encodingIn(const RegisterCache& settings) {
    return TextEncoding::named(readHtml(settings, "CharSet").asString());
}

void DocumentSettings::readPlaces(const RegisterCache& settings, const OrxString& outputDir) {
    const auto html = [&settings](const char* name) { return readHtml(settings, name); };
    pixDir = SysDirectory::getSpecificPath(outputDir, textOf(html("HtmlPixDir")));
    SysDirectory::checkDirectoryAndCreate(pixDir);
    externalDocDir = SysDirectory::getSpecificPath(outputDir, textOf(html("ExternalDocDir")));
    useRelative = html("UseRelative").asBool();
    showIcons = html("ShowIcons").asBool();
    iconFile = textOf(html("IconFile"));
    supportOld = html("SupportOld").asBool();
    bodyTags = textOf(html("BodyTags"));
    suppressImageMaps = html("SuppressImageMaps").asBool();
    navigation = effectiveNavigation(html("Navig").asShort());
    tocLevel = static_cast<std::uint32_t>(html("TOCLevel").asInt());
    dontCopy = textOf(html("DontCopy"));
    installDir = textOf(readDirectly("InstallDir"));
    styleSheet = textOf(html("StyleSheet"));
}

void DocumentSettings::readTexts(const RegisterCache& settings) {
    passThrough = readHtml(settings, "PassThrough").asBool();
    locateInBrowser = readHtml(settings, "LocateInBrowser").asBool();
    scriptNavigator = readHtml(settings, "ScriptNavigator").asBool();
    testLevel = readDirectly("TestLevel").asInt();
    // The value is not used, because the host draws the diagrams. It is read all the same,
    // because a store may rely on being asked.
    static_cast<void>(readHtml(settings, "DiagramType"));
}

bool DocumentSettings::readIniFile(const Trace& trace) {
    const OrxString file = iniFileName();
    FileFailure::forget();
    // This value is compared with case, the next one without.
    const bool beforeJava7 =
        IniFile::read(file, iniSection, "UseJavaPre7", "FALSE", iniBufferSize) == "TRUE";
    OrxString expand =
        IniFile::read(file, iniSection, "ExpandRelativeDocumentNames", "TRUE", iniBufferSize);
    if (FileFailure::isNoted() && !FileFailure::isMissingFile()) {
        failure_lines::write(trace, "ERR Cannot read file ", file);
    }
    expandRelativeNames = true;
    if (!expand.isEmpty()) {
        expandRelativeNames = expand.toUpper() != OrxString("FALSE");
    }
    return !beforeJava7;
}

OrxString userFilesDir() {
    return textOf(readDirectly("UserFilesDir"));
}

}  // namespace quillmark
