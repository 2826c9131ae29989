"""Checks that the sources keep to the layers that docs/architecture.md draws, and that no text is missing in a language.

check.py ROOT prints what is wrong in that tree; exit status 1 if anything is. Before, it plants one fault of each kind in
a small tree of its own and sees that it is found.
"""

import pathlib
import re
import sys
import tempfile
import xml.etree.ElementTree

# Folders of src/ and what they may include from beside themselves. Every folder may include platform. The C++ of a
# screen's qml/ folder, an item that QML draws with (...Item) and what paints for one (...Painter) may include the
# screen, what it may include, and ui.
MODULES = {
    "platform": [],
    "files": [],
    "sound": ["files"],
    "API/AudioTrimmerController/EZAudio": [],
    "app/settings": ["files"],
    "app/cli": [
        "cloud", "library", "recording", "trimming", "trimming/waves", "trimming/waves/qml", "watch",
        "API/AudioTrimmerController/EZAudio", "app/settings", "files", "library/utility"],
    "library/utility": ["files", "support"],
    "trimming/waves": ["API/AudioTrimmerController/EZAudio", "files", "library/utility"],
    "cloud": ["files"],
    "watch": ["files"],
    "companion": ["watch", "files"],
    "passcode": ["app/settings"],
    "support": ["app/settings"],
    "ui": [],
    "recording": ["trimming/waves", "cloud", "watch", "app/settings", "files", "library/utility"],
    "trimming": ["trimming/waves", "API/AudioTrimmerController/EZAudio", "cloud", "app/settings", "files", "library/utility"],
    "library": ["trimming", "trimming/waves", "cloud", "app/settings", "files", "library/utility"],
    "app": [
        "recording", "library", "trimming", "passcode", "cloud", "watch", "support", "app/settings", "files", "library/utility"],
}
FEATURE_TESTS = {name.split("/")[0] for name in MODULES}
ENGINE = "API/AudioTrimmerController/EZAudio"

# What only adapters may name: timers, stores, networks, buses and the system's clocks.
RESERVED = re.compile(
    r"\b(QTimer|QBasicTimer|QSettings|QElapsedTimer|QDeadlineTimer|QNetwork\w+|QDBus\w+|gettimeofday|clock_gettime"
    r"|QDateTime::current\w+|QDate::current\w+|QTime::current\w+|(?:system|steady|high_resolution)_clock)\b")
# Headers of a library, and the adapters that stand before it.
LIBRARIES = [
    (re.compile(r"^pulse/"), {"adapters/pulse"}),
    (re.compile(r"^plist/"), {"adapters/plist"}),
    (re.compile(r"^openssl/"), {"adapters/webdav"}),
    (re.compile(r"^(libsecret/|sodium|glib|gio/)"), {"adapters/secret"}),
    (re.compile(r"^lib(av|sw)\w+/"), {"adapters/ffmpeg"}),
    (re.compile(r"^(QtDBus|QDBus)"), {"adapters/dbus", "adapters/desktop", "adapters/network", "adapters/tray", "main"}),
]
# Modules in plain C++: no header that they include brings Qt. One header of theirs is for those who do know Qt.
PLAIN = {ENGINE, "sound", "files"}
PLAIN_FOR_QT = "files/PathText.h"
QT = re.compile(r"^(Qt?[A-Z]|Q[A-Z])")
GRAPHICS = re.compile(r"^(Qt(Quick|Qml|Gui|Widgets)\b|QQ(uick|ml)|QGuiApplication|QPainter|QWindow|QImage)")
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)
# How many forms a text with a number has; two where nothing is said.
PLURALS = {"pl": 3, "ru": 3, "ar": 6, "tr": 1, "ja": 1, "zh_CN": 1}
TEXT = re.compile(r'q[st]TrId\("([^"]+)"')
NOISE = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"', re.DOTALL)


def module_of(path):
    """The folder of src/ that a path below it belongs to; None for none. "main" is what puts the adapters together: what
    lies in src/ itself, and the library that main.cpp loads them from, and the companion's main.cpp."""
    parts = pathlib.PurePosixPath(path).parts
    if len(parts) == 1 or parts[0] == "media" or path == "companion/main.cpp":
        return "main"
    if parts[0] == "adapters":
        return "/".join(parts[:2]) if len(parts) > 2 else None
    found = max((name for name in MODULES if path.startswith(name + "/")), key=len, default=None)
    if found and ("qml" in parts[len(found.split("/")):-1] or parts[-1].split(".")[0].endswith(("Item", "Painter"))):
        return found + "/qml"
    return found


def allowed(module):
    """What a module may include, itself left out; None for everything."""
    if module == "main":
        return None
    if module.startswith("adapters/"):
        return {"platform", "files", "sound", ENGINE}
    if module.endswith("/qml"):
        base = module[: -len("/qml")]
        return {base, "ui", "ui/qml", "platform", *MODULES[base]}
    return {"platform", *MODULES[module]}


def check_includes(path, module, code, qt_headers):
    may_include = allowed(module)
    is_plain = module in PLAIN and path != PLAIN_FOR_QT
    logic = not (module in ("main", "ui") or module.startswith("adapters/") or module.endswith("/qml"))
    for kind, header in INCLUDE.findall(code):
        if kind == '"':
            target = module_of(header) if "/" in header else None
            if target and target != module and may_include is not None and target not in may_include:
                yield f'{module} must not include "{header}"'
            elif is_plain and header in qt_headers:
                yield f'"{header}" brings Qt; {module} is plain C++'
            continue
        for pattern, owners in LIBRARIES:
            if pattern.match(header) and module not in owners:
                yield f"<{header}> belongs to {', '.join(sorted(owners))}"
        if logic and GRAPHICS.match(header):
            yield f"<{header}> draws; {module} holds no drawing"
        if is_plain and QT.match(header):
            yield f"<{header}> is Qt; {module} is plain C++"


def check_source(path, code, qt_headers):
    module = module_of(path)
    if module is None:
        yield "belongs to no folder that this check knows"
        return
    yield from check_includes(path, module, code, qt_headers)
    if module != "main" and not module.startswith("adapters/"):
        for name in sorted(set(RESERVED.findall(NOISE.sub(" ", code)))):
            yield f"{name} is for adapters only"


def check_test(path, code, _qt_headers):
    kind, folder = pathlib.PurePosixPath(path).parts[:2]
    of_features = kind in ("ui", "support") or (kind == "unit" and folder in FEATURE_TESTS)
    for _, header in INCLUDE.findall(code):
        if header.startswith("adapters/") and of_features:
            yield f'only tests of adapters may include "{header}"'


def find_qt_headers(folder):
    """The headers below a folder that include one of Qt, themselves or by others."""
    includes = {file.relative_to(folder).as_posix(): INCLUDE.findall(file.read_text(encoding="utf-8"))
                for file in folder.rglob("*.h")}
    found = {path for path, headers in includes.items() if any(kind == "<" and QT.match(name) for kind, name in headers)}
    more = found
    while more:
        more = {path for path, headers in includes.items() if path not in found and any(name in found for _, name in headers)}
        found |= more
    return found


def placeholders(text):
    return sorted(re.findall(r"%(?:L?\d|n)", text))


def check_texts(root):
    """Every text that is asked for and no other, in every language, with the same places to fill and all plural forms."""
    tables = {}
    for file in sorted((root / "src").glob("ui/strings/*.ts")):
        tables[file.name] = {message.get("id"): ["".join(form.itertext()) for form in message.findall("translation/numerusform")
                                                 or message.findall("translation")]
                             for message in xml.etree.ElementTree.parse(file).iter("message")}
    sources = [file.read_text(encoding="utf-8") for file in (root / "src").rglob("*") if file.suffix in (".cpp", ".h", ".qml")]
    asked = {text for source in sources for text in TEXT.findall(source)}
    everything = asked.union(*tables.values())
    english = tables.get("tavi_en.ts", {})
    named = "\n".join(sources)
    yield from (f"tavi_en.ts: nobody asks for {text}" for text in english if f'"{text}"' not in named)
    for name, table in tables.items():
        yield from (f"{name}: no text for {text}" for text in sorted(everything - table.keys()))
        for text, forms in table.items():
            model = english.get(text, [""])
            if not all(form.strip() for form in forms) or placeholders(forms[-1]) != placeholders(model[-1]):
                yield f"{name}: {text} is empty or has other places to fill"
            plurals = PLURALS.get(name.removeprefix("tavi_").removesuffix(".ts"), 2) if "%n" in model[-1] else 1
            if len(forms) != plurals:
                yield f"{name}: {text} has {len(forms)} forms, not {plurals}"
            spoken = name != "tavi_en.ts" and not text.startswith("key_")
            if spoken and forms == model and len(re.findall(r"\w{3,}", model[0])) > 2:
                yield f"{name}: {text} is English"


def check(root):
    faults = [f"src/ui/strings/{fault}" for fault in check_texts(root)]
    count = 0
    qt_headers = find_qt_headers(root / "src")
    for folder, checker in (("src", check_source), ("tests", check_test)):
        for file in sorted((root / folder).rglob("*")):
            if file.suffix in (".h", ".cpp"):
                count += 1
                path = file.relative_to(root / folder).as_posix()
                faults += [f"{folder}/{path}: {fault}" for fault in checker(path, file.read_text(encoding="utf-8"), qt_headers)]
    return faults, count


CLEAN = {
    "src/main.cpp": '#include "adapters/qt/QtRunLoop.h"\nQTimer* allowed;\n',
    "src/platform/Text.h": "#include <QString>\n",
    "src/files/PathText.h": '#include "platform/Text.h"\n',
    "src/adapters/pulse/Input.cpp": '#include <pulse/pulseaudio.h>\n#include "platform/AudioInput.h"\nQTimer t;\n',
    "src/recording/AudioRecordVC.cpp": '#include "trimming/waves/WaveView.h"\n// no QTimer here\nauto s = "QSettings";\n',
    "src/recording/qml/Item.cpp": '#include <QtQml/qqml.h>\n#include "recording/AudioRecordVC.h"\n#include "ui/qml/Shell.h"\n',
    "src/trimming/waves/WaveViewItem.h": '#include <QQuickPaintedItem>\n#include "trimming/waves/WaveView.h"\n',
    "tests/contract/Clock.cpp": '#include "adapters/qt/QtClock.h"\n',
}
PLANTED = {
    "src/library/Clock.cpp": "auto now = std::chrono::steady_clock::now();\n",
    "src/recording/Adapter.cpp": '#include "adapters/qt/QtRunLoop.h"\n',
    "src/recording/Qml.cpp": '#include "recording/qml/Item.h"\n',
    "src/recording/Paint.cpp": "#include <QPainter>\n",
    "src/adapters/recorder/Chain.cpp": '#include "adapters/pulse/Input.h"\n',
    "src/adapters/recorder/Codec.cpp": "extern \"C\" {\n#include <libavcodec/avcodec.h>\n}\n",
    "src/API/AudioTrimmerController/EZAudio/Qt.h": "#include <QString>\n",
    "src/sound/mp4/Qt.h": "#include <QtGlobal>\n",
    "src/files/Qt.h": "#include <QString>\n",
    "src/sound/wav/Far.cpp": '#include "files/PathText.h"\n',
    "src/sound/mp4/Codec.h": "#include <libavutil/mem.h>\n",
    "src/platform/Up.h": '#include "recording/AudioRecordVC.h"\n',
    "src/elsewhere/Stray.cpp": "int stray;\n",
    "tests/unit/recording/Real.cpp": '#include "adapters/qt/QtClock.h"\n',
}

# Several faults in one file of a screen.
CROWDED = "src/recording/Crowded.cpp"
CROWD = "#include <pulse/simple.h>\nQTimer t;\nauto n = QDateTime::currentDateTime();\nQDBusConnection c;\n"
CROWD_FAULTS = ["<pulse/simple.h>", "QDBusConnection", "QDateTime::currentDateTime", "QTimer"]


# A text that has no German, one that has another place to fill there, one that nobody wrote, and one that nobody asks for,
# that is not translated, and that lacks a plural.
SPARE = '<message id="d"><translation>%n words that are English</translation></message>'
WORDS = {
    "src/ui/strings/tavi_en.ts": '<TS><message id="a"><translation>A</translation></message>'
                                 '<message id="b"><translation>%1 b</translation></message>' + SPARE + "</TS>",
    "src/ui/strings/tavi_de.ts": '<TS><message id="b"><translation>b</translation></message>' + SPARE + "</TS>",
    "src/ui/Words.cpp": 'auto c = qtTrId("c") + qtTrId("a") + qtTrId("b");\n',
}
WORDS_FAULTS = ["tavi_en.ts: nobody asks for d", "tavi_de.ts: no text for a", "tavi_de.ts: no text for c", "tavi_de.ts: b is empty",
                "tavi_de.ts: d has 1 forms, not 2", "tavi_de.ts: d is English", "tavi_en.ts: no text for c",
                "tavi_en.ts: d has 1 forms"]


def self_test():
    def faults_of(files):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            for name, code in files.items():
                (root / name).parent.mkdir(parents=True, exist_ok=True)
                (root / name).write_text(code)
            return check(root)[0]

    wrong = [f"found in a clean tree: {fault}" for fault in faults_of(CLEAN)]
    for name, code in PLANTED.items():
        found = faults_of(CLEAN | {name: code})
        if len(found) != 1 or not found[0].startswith(name + ":"):
            wrong.append(f"planted in {name}, found {found}")
    found = faults_of(CLEAN | WORDS)
    if len(found) != len(WORDS_FAULTS) or not all(text in fault for text, fault in zip(WORDS_FAULTS, found)):
        wrong.append(f"planted in texts, found {found}")
    found = faults_of(CLEAN | {CROWDED: CROWD})
    if [fault.split()[1] for fault in found] != CROWD_FAULTS:
        wrong.append(f"planted in {CROWDED}, found {found}")
    return wrong


def main(root):
    faults, count = check(pathlib.Path(root))
    if count == 0:
        faults = [f"no sources below {root}"]
    faults += self_test()
    print("\n".join([*faults, f"{count} checked, {len(faults)} wrong"]))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
