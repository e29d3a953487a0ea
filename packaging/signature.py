"""Signs a Windows program in place, so that Windows can say who published it.

usage: signature.py CERTIFICATE.p12 PROGRAM.exe

TALLYREX_CERTIFICATE_PASSWORD_FILE names a file that holds the password of the certificate (none: no password);
TALLYREX_TIMESTAMP_SERVER the address of a timestamp server (none: the signature expires with the certificate).
"""
import os
import pathlib
import subprocess
import sys


def sign(certificate, program):
    """Signs `program` with a PKCS #12 certificate; CalledProcessError where that fails."""
    program = pathlib.Path(program)
    signed = program.with_name(program.name + ".signed")
    password = os.environ.get("TALLYREX_CERTIFICATE_PASSWORD_FILE")
    server = os.environ.get("TALLYREX_TIMESTAMP_SERVER")
    command = ["osslsigncode", "sign", "-pkcs12", str(certificate), "-h", "sha256", "-n", "Tallyrex"]
    command += ["-readpass", password] if password else ["-pass", ""]
    command += ["-ts", server] if server else []
    try:
        subprocess.run(command + ["-in", str(program), "-out", str(signed)], check=True, stdout=sys.stderr)
        signed.replace(program)
    finally:
        signed.unlink(missing_ok=True)


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__.strip())
    sign(*sys.argv[1:])
