using System;
using System.IO;
using System.Text;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Dwg;
using Korvan.CAD.FileFormats.Cad.Dwg.Early;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Input;
using Korvan.CAD.Rendering;
using Korvan.CAD.Rendering.Scene;

namespace Korvan.CAD.Formats.Dwg;

/// <summary>Drawing databases and their templates. The release is in the first six bytes; a template has the same
/// content, but another file extension.</summary>
internal static class DwgFormat
{
    private const int VersionLength = 6;
    private const string TemplateExtension = ".dwt";

    // The first bytes, and the formats of drawings and templates.
    private static readonly (string Start, FileFormat Drawing, FileFormat Template)[] Releases =
    [
        ("AC1.", FileFormat.CadR1_4, FileFormat.DwtCadR1_4),
        ("AC2.", FileFormat.CadR2_10, FileFormat.DwtCadR2_10),
        ("AC1001", FileFormat.CadR2_22, FileFormat.DwtCadR2_22),
        ("AC1002", FileFormat.CadR2_5, FileFormat.DwtCadR2_5),
        ("AC1003", FileFormat.CadR2_6, FileFormat.DwtCadR2_6),
        ("AC1004", FileFormat.CadR9, FileFormat.DwtCadR9),
        ("AC1006", FileFormat.CadR010, FileFormat.DwtCadR010),
        ("AC1009", FileFormat.CadR011_012, FileFormat.DwtCadR011_012),
        ("AC1012", FileFormat.CadR013, FileFormat.DwtCadR013),
        ("AC1014", FileFormat.CadR014, FileFormat.DwtCadR014),
        ("AC1015", FileFormat.CadR2000, FileFormat.DwtCadR2000),
        ("AC1018", FileFormat.CadR2004, FileFormat.DwtCadR2004),
        ("AC1021", FileFormat.CadR2007, FileFormat.DwtCadR2007),
        ("AC1024", FileFormat.CadR2010, FileFormat.DwtCadR2010),
        ("AC1027", FileFormat.CadR2013, FileFormat.DwtCadR2013),
        ("AC1032", FileFormat.CadR2018, FileFormat.DwtCadR2018),
    ];

    internal static FormatRecord Record { get; } = new()
    {
        Name = "DWG",
        Formats = AllFormats(),
        Detect = Detect,
        Read = static (source, _, options) => Read(source.All(), source.Name, options),
        Writers =
        [
            FormatWriter.For<IDrawingContent, DwgOptions>(OutputKind.Model, Write),
        ],
        Written =
        [
            FileFormat.CadR2000, FileFormat.CadR2004, FileFormat.CadR2010, FileFormat.CadR2013, FileFormat.CadR2018,
        ],
        OwnOptions = static (content, _) => content is IDrawingContent ? new DwgOptions() : null,
    };

    private static FileFormat[] AllFormats()
    {
        FileFormat[] formats = new FileFormat[2 * Releases.Length];
        for (int i = 0; i < Releases.Length; i++)
        {
            (_, formats[i], formats[Releases.Length + i]) = Releases[i];
        }

        return formats;
    }

    private static FileFormat Detect(SourceWindow source)
    {
        ReadOnlySpan<byte> start = source.FirstBytes;
        if (!start.StartsWith("AC"u8) || start.Length <= VersionLength)
        {
            return FileFormat.Undefined;
        }

        string version = Encoding.ASCII.GetString(start[..VersionLength]);
        foreach ((string code, FileFormat drawing, FileFormat template) in Releases)
        {
            if (version.StartsWith(code, StringComparison.Ordinal))
            {
                return Path.GetExtension(source.Name).Equals(TemplateExtension, StringComparison.OrdinalIgnoreCase)
                    ? template : drawing;
            }
        }

        return FileFormat.Undefined;
    }

    private static CadDrawing Read(byte[] data, string name, LoadOptions options)
    {
        CadAcadVersion version = DrawingRelease.Parse(Encoding.ASCII.GetString(data, 0, VersionLength));
        return version >= CadAcadVersion.AC1012
            ? DwgLoader.Load(data, name, version, options) : EarlyDwgReader.Read(data, name, options);
    }

    private static void Write(IDrawingContent content, DwgOptions options, ExportContext context, Stream output)
    {
        foreach (string what in DwgSaver.Save(
            content.Drawing, options, output, () => TextMeasurer.TryCreate(content.Drawing)))
        {
            context.Notes.Add(RenderErrorCode.EntityNotDrawn, what);
        }
    }
}
