#!/usr/bin/env python3
"""Holds the manifests for the package managers against their formats and against the packages beside them.

Arguments: the packages' folder, their version, where they are downloaded from. The formats are those of the published
schemas: winget's manifests 1.6.0 (version, installer, default locale) and scoop's schema.json; of both only what our
manifests use is known here, so that a field that is new to them has to be looked up and added. Reports in GoogleTest's
form.
"""
import hashlib
import json
import os
import re
import sys

import yaml

VERSION = r"[^\\/:*?\"<>|\x01-\x1f]+"
IDENTIFIER = r"[^.\s\\/:*?\"<>|\x01-\x1f]{1,32}(\.[^.\s\\/:*?\"<>|\x01-\x1f]{1,32}){1,7}"
LOCALE = r"([a-zA-Z]{2,3}|[iI]-[a-zA-Z]+|[xX]-[a-zA-Z]{1,8})(-[a-zA-Z]{1,8})*"
SHA256 = r"[A-Fa-f0-9]{64}"
URL = r"https?://[^\s$]+"


def text(shortest, longest):
    return r"(?s).{%d,%d}" % (shortest, longest)


def one_of(*words):
    return "|".join(re.escape(word) for word in words)


# A format is a pattern for the whole of a text, a list with the format of its items, or an object: each field with its
# format, the required ones marked by "!".
WINGET_HEAD = {"PackageIdentifier!": IDENTIFIER, "PackageVersion!": VERSION, "ManifestVersion!": r"1\.6\.0"}
WINGET_VERSION = {**WINGET_HEAD, "DefaultLocale!": LOCALE, "ManifestType!": "version"}
WINGET_INSTALLER = {
    **WINGET_HEAD,
    "ManifestType!": "installer",
    "Platform": [one_of("Windows.Desktop", "Windows.Universal")],
    "InstallerType": one_of("msix", "msi", "appx", "exe", "zip", "inno", "nullsoft", "wix", "burn", "pwa", "portable"),
    "Scope": one_of("user", "machine"),
    "InstallModes": [one_of("interactive", "silent", "silentWithProgress")],
    "UpgradeBehavior": one_of("install", "uninstallPrevious"),
    "ExpectedReturnCodes": [{
        "InstallerReturnCode": r"-?[1-9]\d{0,9}",
        "ReturnResponse": one_of("packageInUse", "packageInUseByApplication", "installInProgress", "fileInUse",
                                 "missingDependency", "diskFull", "insufficientMemory", "invalidParameter",
                                 "noNetwork", "contactSupport", "rebootRequiredToFinish",
                                 "rebootRequiredForInstall", "rebootInitiated", "cancelledByUser",
                                 "alreadyInstalled", "downgrade", "blockedByPolicy", "systemNotSupported", "custom"),
    }],
    "ReleaseDate": r"\d{4}-\d{2}-\d{2}",
    "AppsAndFeaturesEntries": [{
        "DisplayName": text(1, 256), "Publisher": text(1, 256), "DisplayVersion": text(1, 128),
        "ProductCode": text(1, 255),
    }],
    "Installers!": [{
        "Architecture!": one_of("x86", "x64", "arm", "arm64", "neutral"),
        "InstallerUrl!": URL,
        "InstallerSha256!": SHA256,
    }],
}
WINGET_LOCALE = {
    **WINGET_HEAD,
    "ManifestType!": "defaultLocale", "PackageLocale!": LOCALE, "Publisher!": text(2, 256), "PublisherUrl": URL,
    "PackageName!": text(2, 256), "PackageUrl": URL, "License!": text(3, 512), "Copyright": text(3, 512),
    "ShortDescription!": text(3, 256), "Tags": [text(1, 40)],
}
SCOOP_ARCHITECTURE = {"url!": URL, "hash!": SHA256}
SCOOP = {
    "version!": r"[\w\-.+_]+", "description": text(1, 1000), "homepage": URL, "license": text(1, 100),
    "notes": [text(1, 1000)], "extract_dir": text(1, 100), "pre_install": text(1, 1000),
    "architecture": {"64bit": SCOOP_ARCHITECTURE, "32bit": SCOOP_ARCHITECTURE},
    "shortcuts": [[text(1, 260)]],
    "uninstaller": {"script!": [text(1, 1000)]},
}


def faults(value, form, where):
    """What in a value is not as its format says."""
    if isinstance(form, str):
        if not isinstance(value, str) or not re.fullmatch(form, value):
            yield f"{where}: {value!r}"
    elif isinstance(form, list):
        if not isinstance(value, list) or not value:
            yield f"{where}: no list"
            return
        for i, item in enumerate(value):
            yield from faults(item, form[0], f"{where}[{i}]")
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
            found[part] = yaml.load(file, yaml.BaseLoader)
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
