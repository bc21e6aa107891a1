using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Container;

/// <summary>Real drawing databases of release 13 and later.</summary>
internal static class DwgSamples
{
    /// <summary>Gets a small file of each layout: plain, in pages, and in encoded pages.</summary>
    internal static readonly string[] Small =
    [
        "lwg__r14_v.dwg", "lwg__2000_entities-2d.dwg", "tika__testDWG2004.dwg", "lwg__2007_Line.dwg",
        "tika__testDWG2010.dwg", "lwg__2013_circle.dwg", "lwg__sample_2018.dwg",
    ];

    internal static IEnumerable<string> Files() => Directory
        .EnumerateFiles(Path.Combine(SharedDrawings.Root!, "dwg"))
        .Where(static path => VersionOf(File.ReadAllBytes(path)) >= CadAcadVersion.AC1012)
        .Order();

    internal static byte[] Bytes(string name) => File.ReadAllBytes(PathOf(name));

    internal static string PathOf(string name) => Path.Combine(SharedDrawings.Root!, "dwg", name);

    internal static CadAcadVersion VersionOf(byte[] data) =>
        data.Length < 6 ? CadAcadVersion.None : DrawingRelease.Parse(Encoding.ASCII.GetString(data, 0, 6));

    internal static DwgFile Open(byte[] data, string name, LoadOptions options) =>
        DwgContainer.Read(data, name, VersionOf(data), options);

    internal static DwgFile Open(string path, LoadOptions options) =>
        Open(File.ReadAllBytes(path), Path.GetFileName(path), options);

    /// <summary>Returns the data of an object and the number of bits of its references.</summary>
    internal static (byte[] Record, long HandleBits) RecordOf(DwgFile file, int index)
    {
        BitReader bits = new(file.Objects, file.Map.Offsets[index] << 3, long.MaxValue);
        int size = bits.ModularShort();
        long handleBits = file.Release >= 2010 ? (long)bits.UnsignedModularChar() : 0;
        return (bits.Bytes((long)size), handleBits);
    }
}
