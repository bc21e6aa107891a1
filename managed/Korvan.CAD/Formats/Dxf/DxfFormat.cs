using System;
using System.Linq;
using System.Text;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.ImageOptions;

namespace Korvan.CAD.Formats.Dxf;

/// <summary>Drawing interchange files (DXF), text and binary.</summary>
internal static class DxfFormat
{
    private const int VersionLength = 6;

    private static readonly FileFormat[] Releases =
    [
        .. Enum.GetValues<FileFormat>().Where(static format =>
            format is >= FileFormat.DxfCadR010 and <= FileFormat.DxfCadR2013),
    ];

    internal static FormatRecord Record { get; } = new()
    {
        Name = "DXF",
        Formats = Releases,
        Detect = static source => source.Search(Detect),
        Read = static (data, name, _, options) => new DxfReader(data, name, options).Read(),
        Writers =
        [
            FormatWriter.For<IDrawingContent, DxfOptions>(
                OutputKind.Model,
                static (content, options, _, output) => DxfSaver.Save(content.Drawing, options, output)),
        ],
        Written =
        [
            .. Enum.GetValues<DxfOutputVersion>().Where(static version => version != DxfOutputVersion.Original)
                .Select(static version => DxfRelease.ToFileFormat(DxfRelease.From(version))).Distinct(),
        ],
        OwnOptions = static (content, _) => content is IDrawingContent ? new DxfOptions() : null,
    };

    // A text file begins with group code 0 and SECTION, possibly after comments; the release is in its header.
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

        // Files of the first releases have no header, or one without a release.
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
