#!/bin/sh
# Builds the managed projects with analyzers and code style as errors, in a folder of its own: the analyzers take longer
# than the compiler, so that the everyday build goes without them. The tests bring the library and the interop runtime.
set -eu

cd "$(dirname "$0")/.."
for project in managed/Korvan.WrpGen managed/Korvan.CAD.SchemaGen managed/Korvan.CAD.CodecGen \
    tests/managed/Korvan.CAD.Tests tests/managed/Korvan.WrpGen.Tests; do
    dotnet build "$project" -c Release --nologo -v quiet -p:KorvanLint=true --artifacts-path build/lint
done
