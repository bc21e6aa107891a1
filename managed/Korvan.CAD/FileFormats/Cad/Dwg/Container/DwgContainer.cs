using System.IO;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Dwg.Container.Paged;
using Korvan.CAD.FileFormats.Cad.Dwg.Container.Release2007;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Container;

/// <summary>Reads the sections of drawing databases from release 13 on.</summary>
internal static class DwgContainer
{
    private const int LastPlain = 2000;

    // Where objects can begin: after the file header, and after the number that a section begins with.
    private const int FirstPlainObject = 0x60;
    private const int FirstObject = 4;

    /// <summary>Reads the sections of a file.</summary>
    /// <param name="data">The whole file.</param>
    /// <param name="name">Its name in messages.</param>
    /// <param name="version">The release that its first bytes state.</param>
    /// <param name="options">The load options.</param>
    /// <exception cref="ImageLoadException">The file is damaged, or of a release that has other files.</exception>
    internal static DwgFile Read(byte[] data, string name, CadAcadVersion version, LoadOptions options)
    {
        DwgSource source = new(data, name, options);
        DwgFile file = version switch
        {
            CadAcadVersion.AC1012 or CadAcadVersion.AC1014 or CadAcadVersion.AC1015 =>
                PlainContainer.Read(source, version),
            CadAcadVersion.AC1018 or CadAcadVersion.AC1024 or CadAcadVersion.AC1027 or CadAcadVersion.AC1032 =>
                PagedContainer.Read(source, version),
            CadAcadVersion.AC1021 => EncodedContainer.Read(source),
            _ => throw new ImageLoadException($"'{name}' is of release {version}, whose container cannot be read."),
        };
        if (source.IsTolerant && (file.Map.Count == 0 || file.Map.IsDamaged || !ObjectWalk.IsWhole(file)))
        {
            file.Map = ObjectWalk.Complete(file, file.Release <= LastPlain ? FirstPlainObject : FirstObject);
        }

        return file;
    }

    /// <summary>Writes a drawing database of release 2000, 2004, 2010, 2013 or 2018.</summary>
    /// <param name="content">What it is written of.</param>
    /// <param name="output">The file.</param>
    internal static void Write(DwgContent content, Stream output)
    {
        if (content.Version == CadAcadVersion.AC1015)
        {
            PlainWriter.Write(content, output);
            return;
        }

        PagedWriter.Write(content, output);
    }
}
