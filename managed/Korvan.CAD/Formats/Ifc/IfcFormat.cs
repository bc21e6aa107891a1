using System;
using System.Buffers.Binary;
using System.IO;
using System.IO.Compression;
using System.Linq;
using System.Text;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Ifc.Model;
using Korvan.CAD.FileFormats.Ifc.Xml;
using Korvan.CAD.Formats.Step;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Input;

namespace Korvan.CAD.Formats.Ifc;

/// <summary>Building models: clear text files, ZIP archives of them, and XML of IFC2X3.</summary>
internal static class IfcFormat
{
    private const int MaxHeaderLength = 1 << 20;

    internal static FormatRecord Record { get; } = new()
    {
        Name = "IFC",
        Formats = [FileFormat.IFC2X3, FileFormat.IFC4],
        Detect = Detect,
        Read = static (source, _, options) => new IfcReader(source.All(), source.Name, options).Read(),
        Writers =
        [
            FormatWriter.For<IBuildingContent, IfcOptions>(OutputKind.Model, static (content, options, _, output) =>
                IfcSaver.Save(content.Model, content.Header, options.IsPacked, output)),
        ],
        OwnOptions = static (content, place) =>
            content is IBuildingContent building ? OwnOptions(building, place) : null,
        Explain = static source => IfcXml.IsIfcXml(source.FirstBytes)
            ? "is a building model in XML (ifcXML) of a version other than IFC2X3, which cannot be read yet"
            : null,
    };

    private static FileFormat Detect(SourceWindow source)
    {
        if (source.FirstBytes.StartsWith("PK\u0003\u0004"u8))
        {
            return DetectPacked(source);
        }

        if (IfcXml.IsIfc2X3(source.FirstBytes))
        {
            return FileFormat.IFC2X3;
        }

        FileFormat schema = source.Search(StepFormat.DetectSchema);
        return schema is FileFormat.IFC2X3 or FileFormat.IFC4 ? schema : FileFormat.Undefined;
    }

    // The model can be any entry; its name shows which.
    private static FileFormat DetectPacked(SourceWindow source)
    {
        try
        {
            using var archive = new ZipArchive(new MemoryStream(source.All(), false), ZipArchiveMode.Read);
            ZipArchiveEntry? model = archive.Entries.FirstOrDefault(static entry =>
                Path.GetExtension(entry.FullName).Equals(".ifc", StringComparison.OrdinalIgnoreCase));
            return model is null ? FileFormat.Undefined : SchemaOf(model);
        }
        catch (InvalidDataException)
        {
            return FirstEntryIsModel(source.FirstBytes) ? FileFormat.IFC4 : FileFormat.Undefined;
        }
    }

    // A truncated archive has no directory; it is detected by the name of its first entry.
    private static bool FirstEntryIsModel(ReadOnlySpan<byte> start)
    {
        const int fixedLength = 30;
        if (start.Length < fixedLength)
        {
            return false;
        }

        int nameLength = BinaryPrimitives.ReadUInt16LittleEndian(start[26..]);
        ReadOnlySpan<byte> name = start[fixedLength..Math.Min(start.Length, fixedLength + nameLength)];
        return name.Length > 4 && Ascii.EqualsIgnoreCase(name[^4..], ".ifc"u8);
    }

    private static FileFormat SchemaOf(ZipArchiveEntry model)
    {
        using Stream content = model.Open();
        byte[] start = new byte[Math.Min(MaxHeaderLength, Math.Max(0, model.Length))];
        int count = content.ReadAtLeast(start, start.Length, false);
        FileFormat schema = StepFormat.DetectSchema(start.AsSpan(0, count), isWhole: true) ?? FileFormat.Stp;
        return schema is FileFormat.IFC2X3 ? schema : FileFormat.IFC4;
    }

    // The extension determines whether the file is compressed. XML is only read.
    private static IfcOptions? OwnOptions(IBuildingContent content, SaveTarget place)
    {
        if (content.Form == IfcFileForm.Xml)
        {
            throw new IfcImageException(
                "Models are not written as XML (ifcXML); save with IfcOptions, which writes STEP.");
        }

        bool isNamed = place.Extension.Equals(".ifc", StringComparison.OrdinalIgnoreCase);
        bool isPacked = place.Extension.Equals(".ifczip", StringComparison.OrdinalIgnoreCase)
            || (content.Form == IfcFileForm.Packed && !isNamed);
        return new IfcOptions { IsPacked = isPacked };
    }
}
