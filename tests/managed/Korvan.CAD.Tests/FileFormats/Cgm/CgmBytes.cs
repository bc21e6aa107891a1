using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.FileFormats.Cgm;
using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.Tests.FileFormats.Cgm;

/// <summary>Metafiles put together by hand.</summary>
internal static class CgmBytes
{
    /// <summary>BEGMF with the name "t": class 0, number 1, two bytes of parameters.</summary>
    internal const string Begin = "0022 0174";

    internal const string End = "0040";

    internal static byte[] Hex(string text) => Convert.FromHexString(text.Replace(" ", "", StringComparison.Ordinal));

    /// <summary>A metafile of elements given as hexadecimal digits, between its delimiters.</summary>
    internal static byte[] Metafile(params string[] elements) => Hex(Begin + string.Concat(elements) + End);

    internal static CgmFile Load(byte[] data, bool ignoreErrors = false) =>
        CgmFile.Load(new MemoryStream(data), ignoreErrors);

    internal static CgmFile LoadText(string text, bool ignoreErrors = false) =>
        Load(Encoding.Latin1.GetBytes(text), ignoreErrors);

    /// <summary>Reads the elements of a clear text metafile, without its delimiters.</summary>
    internal static List<Command> Elements(string text) =>
        [.. LoadText($"BEGMF 't';{text};ENDMF;").Commands.Skip(1).SkipLast(1)];

    internal static byte[] Save(IEnumerable<Command> elements, CgmFileFormat format)
    {
        var file = new CgmFile();
        file.Commands.AddRange([new BeginMetafile("t"), .. elements, new EndMetafile()]);
        var stream = new MemoryStream();
        file.Save(stream, format);
        return stream.ToArray();
    }

    internal static string SaveText(params Command[] elements) =>
        Encoding.Latin1.GetString(Save(elements, CgmFileFormat.ClearText));
}
