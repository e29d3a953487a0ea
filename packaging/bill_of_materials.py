"""The software bill of materials (CycloneDX 1.5, JSON): what is inside Tallyrex.exe."""
import hashlib
import time
import uuid

PUBLISHER = "The Tallyrex authors"
MINGW_W64 = "https://www.mingw-w64.org/"
GCC = "https://gcc.gnu.org/"


def component(name, version, description, licenses, website):
    return {
        "type": "library",
        "bom-ref": name,
        "name": name,
        "version": version,
        "description": description,
        "licenses": licenses,
        "externalReferences": [{"type": "website", "url": website}],
    }


def runtime_components(runtime):
    """What the compiler links into the program; `runtime` holds the versions of gcc and mingw-w64."""
    return [
        component("mingw-w64 runtime", runtime["mingw-w64"], "Start-up code, mathematical and text functions",
                  [{"license": {"id": "ZPL-2.1"}}], MINGW_W64),
        component("winpthreads", runtime["mingw-w64"], "Locks and threads of the C++ library",
                  [{"license": {"id": "MIT"}}, {"license": {"id": "BSD-3-Clause"}}], MINGW_W64),
        component("libstdc++ and libgcc", runtime["gcc"], "The C++ standard library and the compiler's support code",
                  [{"expression": "GPL-3.0-or-later WITH GCC-exception-3.1"}], GCC),
    ]


def bill_of_materials(version, program, runtime, date):
    """The document as a dict, for a program's bytes; `date` is in seconds since 1970."""
    digest = hashlib.sha256(program).hexdigest()
    components = runtime_components(runtime)
    return {
        "bomFormat": "CycloneDX",
        "specVersion": "1.5",
        "serialNumber": "urn:uuid:" + str(uuid.uuid5(uuid.NAMESPACE_OID, digest)),
        "version": 1,
        "metadata": {
            "timestamp": time.strftime("%Y-%m-%dT%H:%M:%SZ", time.gmtime(date)),
            "component": {
                "type": "application",
                "bom-ref": "Tallyrex",
                "publisher": PUBLISHER,
                "name": "Tallyrex",
                "version": version,
                "hashes": [{"alg": "SHA-256", "content": digest}],
                "licenses": [{"license": {"id": "MIT"}}],
            },
        },
        "components": components,
        "dependencies": [{"ref": "Tallyrex", "dependsOn": [part["bom-ref"] for part in components]}],
    }
