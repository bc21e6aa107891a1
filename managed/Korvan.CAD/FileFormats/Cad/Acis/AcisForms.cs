using System;
using System.Collections.Generic;
using System.Linq;

namespace Korvan.CAD.FileFormats.Cad.Acis;

/// <summary>Makes the text of a modeler's data out of the binary form, and back. Records, pointers and versions stay as
/// they are.</summary>
internal static class AcisForms
{
    /// <summary>Returns the enciphered lines of a text; none for data that are not known or damaged.</summary>
    internal static List<string> ToText(ReadOnlySpan<byte> data) =>
        SabReader.Read(data, out bool isWhole) is AcisFile file && isWhole
            ? [.. SatWriter.Write(file).Select(SatText.Encipher)] : [];

    /// <summary>Returns the binary form; empty for what is no such text.</summary>
    internal static byte[] ToBinary(IReadOnlyList<string> lines) =>
        SatReader.Read(lines) is AcisFile file ? SabWriter.Write(file) : [];
}
