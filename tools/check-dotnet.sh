#!/bin/sh
# Says what to do where the .NET SDK is missing or too old; silent otherwise.
set -eu

advice="Install the .NET SDK 10 (https://dotnet.microsoft.com/download/dotnet/10.0) and put dotnet on the path."
if ! command -v dotnet >/dev/null; then
    echo "dotnet was not found. $advice" >&2
    exit 1
fi
if ! dotnet --list-sdks | grep -q '^10\.'; then
    echo "No .NET SDK 10 among: $(dotnet --list-sdks | tr '\n' ' '). $advice" >&2
    exit 1
fi
