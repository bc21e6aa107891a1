using System;
using System.IO;
using System.IO.Compression;
using Korvan.CAD.FileFormats.Cgm;
using Korvan.CAD.FileFormats.Cgm.Import;
using Korvan.CAD.Formats.Pages;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Input;
using Korvan.CAD.Rendering;
using Korvan.CAD.Rendering.Devices;
using Korvan.CAD.Rendering.Export;
using Korvan.CAD.Rendering.Scene;

namespace Korvan.CAD.Formats.Cgm;

/// <summary>Computer graphics metafiles (ISO/IEC 8632), binary and clear text, also compressed with gzip.</summary>
internal static class CgmFormat
{
    internal static FormatRecord Record { get; } = new()
    {
        Name = "CGM",
        Formats = [FileFormat.Cgm],
        Detect = static source => IsMetafile(source.FirstBytes) ? FileFormat.Cgm : FileFormat.Undefined,
        Read = static (source, _, options) => CgmFile.Load(source.All(), source.Name, options),
        Writers = [Copying(PageWriters.For<CgmOptions>(Draw))],
        OwnOptions = static (content, _) =>
            content is IMetafileContent metafile ? new CgmOptions { Encoding = metafile.File.Encoding } : null,
    };

    private static void Draw(VectorScene scene, CgmOptions options, ExportContext context, Stream output) =>
        PageExporter.WriteSingle(scene, options, context, output, CgmDocument.Write);

    /// <summary>A metafile is copied command by command, unless the options require a rendered page.</summary>
    private static FormatWriter Copying(FormatWriter drawn) => new()
    {
        OptionsType = drawn.OptionsType,
        KindOf = drawn.KindOf,
        Write = (content, context, output) =>
        {
            if (content is IMetafileContent metafile && IsCopy((CgmOptions)context.Options))
            {
                using var copy = new MemoryStream();
                metafile.File.Write(
                    copy, ((CgmOptions)context.Options).Encoding, "stream",
                    (_, what) => context.Notes.Add(RenderErrorCode.EntityNotDrawn, what));
                copy.WriteTo(output);
                return;
            }

            drawn.Write(content, context, output);
        },
    };

    private static bool IsCopy(CgmOptions options) => options is
    {
        TextAsLines: false, VectorRasterizationOptions: null, UserWatermarkText: "", Layers: [],
        RenderToGraphicsBound: false,
    };

    private static bool IsMetafile(ReadOnlySpan<byte> start)
    {
        ReadOnlySpan<byte> content = CgmSource.IsPacked(start) ? Inflate(start) : start;
        return CgmSource.IsBinary(content) || CgmSource.IsClearText(content);
    }

    // As much as possible: the first bytes end within the compressed data.
    private static byte[] Inflate(ReadOnlySpan<byte> packed)
    {
        byte[] content = new byte[SourceWindow.SignatureLength];
        int count = 0;
        try
        {
            using var stream = new GZipStream(new MemoryStream(packed.ToArray()), CompressionMode.Decompress);
            for (int read = 1; read > 0 && count < content.Length; count += read)
            {
                read = stream.Read(content, count, content.Length - count);
            }
        }
        catch (InvalidDataException)
        {
            return content[..count];
        }

        return content[..count];
    }
}
