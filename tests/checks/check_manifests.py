#!/usr/bin/env python3
"""Holds the manifests for the package managers against their formats and against the packages beside them.

Arguments: the packages' folder, their version, where they are downloaded from. The formats are those of the published
schemas: winget's manifests 1.6.0 (version, installer, default locale) and scoop's schema.json; of both only what our
manifests use is known here, so that a field that is new to them has to be looked up and added. Reports in GoogleTest's
form.
"""
import datetime
import hashlib
import json
import os
import re
import sys

import yaml

URL = r"(?=.{1,2048}$)https?://[a-zA-Z0-9.-]+(:[0-9]+)?(/([a-zA-Z0-9._~:/?@!&'()*+,;=-]|%[a-fA-F0-9]{2})*)?"
VERSION = r"[^\\/:*?\"<>|\x01-\x1f]{1,128}"
IDENTIFIER = r"(?=.{1,128}$)[^.\s\\/:*?\"<>|\x01-\x1f]{1,32}(\.[^.\s\\/:*?\"<>|\x01-\x1f]{1,32}){1,7}"
LOCALE = r"(?=.{1,20}$)([a-zA-Z]{2,3}|[iI]-[a-zA-Z]+|[xX]-[a-zA-Z]{1,8})(-[a-zA-Z]{1,8})*"
SHA256 = r"[A-Fa-f0-9]{64}"


def text(shortest, longest):
    return r"(?s).{%d,%d}" % (shortest, longest)


def one_of(*words):
    return "|".join(re.escape(word) for word in words)


class Items:
    """A list of so many items of one format, no two of them alike where they are a set."""

    def __init__(self, form, most, fewest=0, is_set=True):
        self.form, self.most, self.fewest, self.is_set = form, most, fewest, is_set


def is_date(value):
    try:
        return (isinstance(value, str) and re.fullmatch(r"[0-9]{4}-[0-9]{2}-[0-9]{2}", value) is not None
                and bool(datetime.date.fromisoformat(value)))
    except ValueError:
        return False


def is_return_code(value):
    return type(value) is int and value != 0 and -2147483648 <= value <= 4294967295


# A format is a pattern for the whole of a text, a rule that a value keeps, a list with the format of its items, or an
# object: each field with its format, the required ones marked by "!".
WINGET_HEAD = {"PackageIdentifier!": IDENTIFIER, "PackageVersion!": VERSION, "ManifestVersion!": r"1\.6\.0"}
WINGET_VERSION = {**WINGET_HEAD, "DefaultLocale!": LOCALE, "ManifestType!": "version"}
WINGET_INSTALLER = {
    **WINGET_HEAD,
    "ManifestType!": "installer",
    "Platform": Items(one_of("Windows.Desktop", "Windows.Universal"), 2),
    "InstallerType!": one_of("msix", "msi", "appx", "exe", "zip", "inno", "nullsoft", "wix", "burn", "pwa", "portable"),
    "Scope": one_of("user", "machine"),
    "InstallModes": Items(one_of("interactive", "silent", "silentWithProgress"), 3),
    "UpgradeBehavior": one_of("install", "uninstallPrevious"),
    "ExpectedReturnCodes": Items({
        "InstallerReturnCode!": is_return_code,
        "ReturnResponse!": one_of("packageInUse", "packageInUseByApplication", "installInProgress", "fileInUse",
                                  "missingDependency", "diskFull", "insufficientMemory", "invalidParameter",
                                  "noNetwork", "contactSupport", "rebootRequiredToFinish",
                                  "rebootRequiredForInstall", "rebootInitiated", "cancelledByUser",
                                  "alreadyInstalled", "downgrade", "blockedByPolicy", "systemNotSupported", "custom"),
    }, 128, is_set=False),
    "ReleaseDate": is_date,
    "AppsAndFeaturesEntries": Items({
        "DisplayName": text(1, 256), "Publisher": text(1, 256), "DisplayVersion": text(1, 128),
        "ProductCode": text(1, 255),
    }, 128),
    "Installers!": Items({
        "Architecture!": one_of("x86", "x64", "arm", "arm64", "neutral"),
        "InstallerUrl!": URL,
        "InstallerSha256!": SHA256,
    }, 1024, fewest=1, is_set=False),
}
WINGET_LOCALE = {
    **WINGET_HEAD,
    "ManifestType!": "defaultLocale", "PackageLocale!": LOCALE, "Publisher!": text(2, 256), "PublisherUrl": URL,
    "PackageName!": text(2, 256), "PackageUrl": URL, "License!": text(3, 512), "Copyright": text(3, 512),
    "ShortDescription!": text(3, 256), "Tags": Items(text(1, 40), 16),
}
SCOOP_ARCHITECTURE = {"url!": URL, "hash!": SHA256}
SCOOP_LINES = Items(text(1, 1000), 1000, fewest=1, is_set=False)
SCOOP = {
    "version!": r"[\w\-.+_]+", "description": text(1, 1000), "homepage!": URL, "license!": text(1, 100),
    "notes": SCOOP_LINES, "extract_dir": text(1, 100), "pre_install": text(1, 1000),
    "architecture": {"64bit": SCOOP_ARCHITECTURE, "32bit": SCOOP_ARCHITECTURE},
    # The target in the folder, the name, and where they are wanted the arguments and the icon.
    "shortcuts": Items(Items(text(1, 260), 4, fewest=2, is_set=False), 100, fewest=1),
    "uninstaller": {"script!": SCOOP_LINES},
}


class WingetLoader(yaml.BaseLoader):
    """Reads whole numbers, truth values and nothing as what they are, and everything else as text, as winget does."""


WingetLoader.add_constructor("tag:yaml.org,2002:int", yaml.constructor.SafeConstructor.construct_yaml_int)
for first in "-+0123456789":
    WingetLoader.add_implicit_resolver("tag:yaml.org,2002:int", re.compile(r"[-+]?[0-9]+$"), [first])
WingetLoader.add_constructor("tag:yaml.org,2002:bool", lambda loader, node: node.value.lower() == "true")
WingetLoader.add_implicit_resolver("tag:yaml.org,2002:bool", re.compile(r"(?i)(true|false)$"), list("tTfF"))
WingetLoader.add_constructor("tag:yaml.org,2002:null", lambda loader, node: None)
WingetLoader.add_implicit_resolver("tag:yaml.org,2002:null", re.compile(r"(~|(?i:null)|)$"), ["~", "n", "N", ""])


def faults(value, form, where):
    """What in a value is not as its format says."""
    if isinstance(form, str):
        if not isinstance(value, str) or not re.fullmatch(form, value):
            yield f"{where}: {value!r}"
    elif callable(form):
        if not form(value):
            yield f"{where}: {value!r}"
    elif isinstance(form, Items):
        if not isinstance(value, list) or not form.fewest <= len(value) <= form.most:
            yield f"{where}: no list of {form.fewest} to {form.most}"
            return
        if form.is_set and any(item in value[:i] for i, item in enumerate(value)):
            yield f"{where}: the same twice"
        for i, item in enumerate(value):
            yield from faults(item, form.form, f"{where}[{i}]")
    else:
        if not isinstance(value, dict):
            yield f"{where}: no object"
            return
        fields = {name.rstrip("!"): inner for name, inner in form.items()}
        for name in form:
            if name.endswith("!") and name[:-1] not in value:
                yield f"{where}.{name[:-1]} is missing"
        for name, item in value.items():
            if name not in fields:
                yield f"{where}.{name} is not known"
            else:
                yield from faults(item, fields[name], f"{where}.{name}")


class Packages:
    def __init__(self, folder, version, place):
        self.folder, self.version, self.place = folder, version, place.rstrip("/")

    def pair_faults(self, url, sum_, name):
        """A download's address and sum against the package of that name."""
        if url != f"{self.place}/{name}":
            yield f"{name}: the address is {url}"
        with open(os.path.join(self.folder, name), "rb") as file:
            real = hashlib.sha256(file.read()).hexdigest()
        if sum_.lower() != real:
            yield f"{name}: the sum is {real}, not {sum_}"


def check_winget(packages):
    folder = os.path.join(packages.folder, "manifests", "winget")
    names = {"": WINGET_VERSION, ".installer": WINGET_INSTALLER, ".locale.en-US": WINGET_LOCALE}
    found = {}
    for part, form in names.items():
        name = f"Lumora.ScreenSaver{part}.yaml"
        with open(os.path.join(folder, name), encoding="utf-8") as file:
            found[part] = yaml.load(file, WingetLoader)
        yield from faults(found[part], form, name)
        if found[part].get("PackageVersion") != packages.version:
            yield f"{name}: the version is {found[part].get('PackageVersion')}"
    if len({manifest.get("PackageIdentifier") for manifest in found.values()}) != 1:
        yield "the three manifests are of different packages"
    wanted = {"x64": f"Lumora-{packages.version}-setup.exe", "x86": f"Lumora-x86-{packages.version}-setup.exe"}
    installers = found[".installer"].get("Installers", [])
    if sorted(installer.get("Architecture", "") for installer in installers) != sorted(wanted):
        yield "not one installer for each kind of Windows"
        return
    for installer in installers:
        yield from packages.pair_faults(installer["InstallerUrl"], installer["InstallerSha256"],
                                        wanted[installer["Architecture"]])


def check_scoop(packages):
    with open(os.path.join(packages.folder, "manifests", "scoop", "lumora.json"), encoding="utf-8") as file:
        manifest = json.load(file)
    yield from faults(manifest, SCOOP, "lumora.json")
    if manifest.get("version") != packages.version:
        yield f"lumora.json: the version is {manifest.get('version')}"
    for kind, name in {"64bit": f"Lumora-{packages.version}.zip",
                       "32bit": f"Lumora-x86-{packages.version}.zip"}.items():
        entry = manifest["architecture"][kind]
        yield from packages.pair_faults(entry["url"], entry["hash"], name)


def check_sums(packages):
    with open(os.path.join(packages.folder, "SHA256SUMS"), encoding="utf-8") as file:
        lines = [line.split() for line in file]
    if len(lines) != 4:
        yield f"SHA256SUMS has {len(lines)} lines"
    for sum_, name in lines:
        yield from packages.pair_faults(f"{packages.place}/{name}", sum_, name)


def main():
    packages = Packages(*sys.argv[1:4])
    passed, failed = 0, []
    for name, check in {"WingetsAreInTheirFormAndNameThePackages": check_winget,
                        "ScoopsIsInItsFormAndNamesThePackages": check_scoop,
                        "SumsAreThoseOfThePackages": check_sums}.items():
        try:
            found = list(check(packages))
        except (OSError, ValueError, KeyError, AttributeError, yaml.YAMLError) as error:
            found = [f"{type(error).__name__}: {error}"]
        if found:
            failed.append(name)
            print("Failure")
            print("\n".join(found))
        else:
            passed += 1
    print(f"[  PASSED  ] {passed} tests.")
    for name in failed:
        print(f"[  FAILED  ] Manifests.{name} (0 ms)")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
