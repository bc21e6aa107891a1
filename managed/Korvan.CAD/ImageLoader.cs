using System;
using System.IO;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.FileFormats.Cgm;
using Korvan.CAD.FileFormats.Ifc.Model;
using Korvan.CAD.Raster;
using Korvan.CAD.Raster.Vectorizing;

namespace Korvan.CAD;

/// <summary>Finds the format of a file and the reader for it.</summary>
internal static class ImageLoader
{
    internal static Image Load(string filePath, LoadOptions loadOptions)
    {
        ArgumentNullException.ThrowIfNull(loadOptions);
        byte[] data = ReadFile(filePath);
        Image image = Read(data, filePath, loadOptions);
        image.FilePath = Path.GetFullPath(filePath);
        return image;
    }

    internal static Image Load(Stream stream, string? fileName, LoadOptions loadOptions)
    {
        ArgumentNullException.ThrowIfNull(stream);
        ArgumentNullException.ThrowIfNull(loadOptions);
        byte[] data = ReadStream(stream);
        Image image = Read(data, fileName ?? "stream", loadOptions);
        image.DataStreamContainer = new StreamContainer(stream, loadOptions.UnloadOnDispose);
        image.FilePath = fileName is null ? null : Path.GetFullPath(fileName);
        return image;
    }

    internal static bool CanLoad(string filePath)
    {
        return OddFileName.Exists(filePath) && FormatDetector.CanRead(FormatDetector.Detect(ReadHead(filePath)));
    }

    internal static bool CanLoad(Stream stream) => FormatDetector.CanRead(GetFileFormat(stream));

    internal static FileFormat GetFileFormat(string filePath)
    {
        VerifyFile(filePath);
        return FormatDetector.Detect(ReadHead(filePath));
    }

    internal static FileFormat GetFileFormat(Stream stream)
    {
        ArgumentNullException.ThrowIfNull(stream);
        long position = stream.CanSeek ? stream.Position : 0;
        byte[] head = new byte[FormatDetector.HeadLength];
        int count = stream.ReadAtLeast(head, head.Length, false);
        if (stream.CanSeek)
        {
            stream.Position = position;
        }

        return FormatDetector.Detect(head.AsSpan(0, count));
    }

    private static Image Read(byte[] data, string name, LoadOptions options)
    {
        if (data.Length == 0)
        {
            throw new ImageLoadException($"'{name}' is empty; a drawing was expected.");
        }

        FileFormat format = FormatDetector.Detect(data.AsSpan(0, Math.Min(data.Length, FormatDetector.HeadLength)));
        if (format == FileFormat.Stp)
        {
            format = FormatDetector.StepFormat(data); // the header may be longer than what is looked at first
        }

        if (!FormatDetector.CanRead(format))
        {
            string what = FormatDetector.IsIfcXml(data)
                ? "is a building model in XML (ifcXML) of an edition other than IFC2X3, which cannot be read yet"
                : format == FileFormat.Undefined
                ? "is of no known format; its first bytes are not those of a drawing interchange file"
                : $"is of format {format}, which cannot be read yet";
            string message = $"'{name}' {what}. Drawing interchange files (DXF), building models (IFC), " +
                "metafiles (CGM) and the usual pictures can be read.";
            throw format == FileFormat.Iges ? new IgesImageException(message) : new ImageLoadException(message);
        }

        Image image = format switch
        {
            FileFormat.IFC2X3 or FileFormat.IFC4 => new IfcReader(data, name, options).Read(),
            FileFormat.Cgm => new CgmImage(CgmFile.Load(data, name, options)),
            _ when RasterLoader.CanRead(format) => Vectorized(RasterLoader.Load(data, name, format, options), options),
            _ => new DxfReader(data, name, options).Read(),
        };
        image.LoadOptions = options;
        return image;
    }

    private static Image Vectorized(Image picture, LoadOptions options)
    {
        if (picture is not RasterImage raster || options.VectorizationOptions is not { Method: not VectorizationMethod.None } how)
        {
            return picture;
        }

        using (picture)
        {
            return Vectorizer.Trace(raster, how);
        }
    }

    internal static byte[] ReadFile(string filePath)
    {
        VerifyFile(filePath);
        try
        {
            using FileStream stream = OddFileName.OpenToRead(filePath);
            return ReadStream(stream);
        }
        catch (Exception e) when (e is IOException or UnauthorizedAccessException)
        {
            throw new ImageLoadException($"'{filePath}' could not be read: {e.Message}", e);
        }
    }

    private static byte[] ReadHead(string filePath)
    {
        try
        {
            using FileStream stream = OddFileName.OpenToRead(filePath);
            byte[] head = new byte[FormatDetector.HeadLength];
            int count = stream.ReadAtLeast(head, head.Length, false);
            return head[..count];
        }
        catch (Exception e) when (e is IOException or UnauthorizedAccessException)
        {
            throw new ImageLoadException($"'{filePath}' could not be read: {e.Message}", e);
        }
    }

    internal static byte[] ReadStream(Stream stream)
    {
        using MemoryStream copy = new();
        stream.CopyTo(copy, 1 << 18); // a crossing a block, where the stream is Python's
        return copy.Length == copy.Capacity ? copy.GetBuffer() : copy.ToArray();
    }

    private static void VerifyFile(string filePath)
    {
        ArgumentNullException.ThrowIfNull(filePath);
        if (Directory.Exists(filePath))
        {
            throw new ImageLoadException($"'{filePath}' is a folder; name a file in it.");
        }

        if (!OddFileName.Exists(filePath))
        {
            throw new ImageLoadException($"'{filePath}' does not exist.");
        }
    }
}
