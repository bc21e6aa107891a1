using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Container;

/// <summary>Real drawing databases of release 13 and later.</summary>
internal static class DwgSamples
{
    internal static IEnumerable<string> Files() => Directory
        .EnumerateFiles(Path.Combine(SharedDrawings.Root!, "dwg"))
        .Where(static path => VersionOf(File.ReadAllBytes(path)) >= CadAcadVersion.AC1012)
        .Order();

    internal static CadAcadVersion VersionOf(byte[] data) =>
        data.Length < 6 ? CadAcadVersion.None : DrawingRelease.Parse(Encoding.ASCII.GetString(data, 0, 6));

    internal static DwgFile Open(string path, LoadOptions options)
    {
        byte[] data = File.ReadAllBytes(path);
        return DwgContainer.Read(data, Path.GetFileName(path), VersionOf(data), options);
    }
}
