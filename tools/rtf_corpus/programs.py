"""Runs other makers' programs."""

import subprocess


def run(*command, **options):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, **options).stdout


def office(target, work, files):
    """Converts files to work/out by LibreOffice, with a profile of its own."""
    profile = f"-env:UserInstallation=file://{work}/profile"
    run("soffice", profile, "--headless", "--convert-to", target, "--outdir", work / "out", *files)
