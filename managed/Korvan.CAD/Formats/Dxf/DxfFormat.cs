using System;
using System.IO;
using System.Text;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering;
using Korvan.CAD.Rendering.Scene;

namespace Korvan.CAD.Formats.Dxf;

/// <summary>Drawing interchange files, as text and binary.</summary>
internal static class DxfFormat
{
    private const int VersionLength = 6;

    internal static FormatRecord Record { get; } = new()
    {
        Name = "DXF",
        Formats =
        [
            FileFormat.DxfCadR010, FileFormat.DxfCadR012, FileFormat.DxfCadR014, FileFormat.DxfCadR015,
            FileFormat.DxfCadR021, FileFormat.DxfCadR0221, FileFormat.DxfCadR0222, FileFormat.DxfCadR025,
            FileFormat.DxfCadR026, FileFormat.DxfCadR9, FileFormat.DxfCadR10, FileFormat.DxfCadR11,
                FileFormat.DxfCadR13,
            FileFormat.DxfCadR14, FileFormat.DxfCadR2000, FileFormat.DxfCadR2004, FileFormat.DxfCadR2007,
            FileFormat.DxfCadR2010, FileFormat.DxfCadR2013,
        ],
        Detect = static source => source.Search(Detect),
        Read = static (source, _, options) => new DxfReader(source, options).Read(),
        ReadsInPieces = true,
        Writers =
        [
            FormatWriter.For<IDrawingContent, DxfOptions>(OutputKind.Model, Write),
        ],
        Written =
        [
            FileFormat.DxfCadR012, FileFormat.DxfCadR2000, FileFormat.DxfCadR2004, FileFormat.DxfCadR2007,
            FileFormat.DxfCadR2010, FileFormat.DxfCadR2013,
        ],
        OwnOptions = static (content, _) => content is IDrawingContent ? new DxfOptions() : null,
    };

    private static void Write(IDrawingContent content, DxfOptions options, ExportContext context, Stream output)
    {
        foreach (string what in DxfSaver.Save(
            content.Drawing, options, output, () => TextMeasurer.TryCreate(content.Drawing)))
        {
            context.Notes.Add(RenderErrorCode.EntityNotDrawn, what);
        }
    }

    // A text file begins with group code 0 and SECTION, perhaps after comments; the release stands in its header.
    private static FileFormat? Detect(ReadOnlySpan<byte> start, bool isWhole)
    {
        bool isBinary = start.StartsWith(BinaryTags.Sentinel);
        bool? isText = isBinary ? false : BeginsAsText(start, isWhole);
        if (isText is null)
        {
            return null;
        }

        if (!isBinary && isText == false)
        {
            return FileFormat.Undefined;
        }

        return Release(start, isWhole);
    }

    private static FileFormat? Release(ReadOnlySpan<byte> start, bool isWhole)
    {
        int variable = start.IndexOf("$ACADVER"u8);
        int code = variable < 0 ? -1 : start[variable..].IndexOf("AC1"u8);
        if (code >= 0 && variable + code + VersionLength <= start.Length)
        {
            return DxfRelease.ToFileFormat(
                DrawingRelease.Parse(Encoding.ASCII.GetString(start.Slice(variable + code, VersionLength))));
        }

        // Files of the first releases have no header, or none that states the release.
        return isWhole || start.IndexOf("ENDSEC"u8) >= 0 ? FileFormat.DxfCadR012 : null;
    }

    private static bool? BeginsAsText(ReadOnlySpan<byte> start, bool isWhole)
    {
        ReadOnlySpan<byte> rest = start.StartsWith("\uFEFF"u8) ? start[3..] : start;
        while (true)
        {
            ReadOnlySpan<byte> code = TakeLine(ref rest).Trim(" \t"u8);
            ReadOnlySpan<byte> value = TakeLine(ref rest).Trim(" \t"u8);
            bool isComment = code.SequenceEqual("999"u8);
            if (rest.IsEmpty && !isWhole && (isComment || code.Length < 3))
            {
                return null;
            }

            if (!isComment)
            {
                return code.SequenceEqual("0"u8) && (value.SequenceEqual("SECTION"u8) || value.SequenceEqual("EOF"u8));
            }
        }
    }

    private static ReadOnlySpan<byte> TakeLine(ref ReadOnlySpan<byte> rest)
    {
        int end = rest.IndexOfAny((byte)'\r', (byte)'\n');
        if (end < 0)
        {
            ReadOnlySpan<byte> last = rest;
            rest = [];
            return last;
        }

        ReadOnlySpan<byte> line = rest[..end];
        bool pair = rest[end] == '\r' && end + 1 < rest.Length && rest[end + 1] == '\n';
        rest = rest[(end + (pair ? 2 : 1))..];
        return line;
    }
}
