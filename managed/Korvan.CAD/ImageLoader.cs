using System;
using System.IO;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats;
using Korvan.CAD.FileFormats.Cad;
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
        Verify.NotNull(loadOptions);
        Image image = Read(ReadFile(filePath, VerifyReadable), filePath, loadOptions);
        image.FilePath = Path.GetFullPath(filePath);
        return image;
    }

    internal static Image Load(Stream stream, string? fileName, LoadOptions loadOptions)
    {
        Verify.NotNull(stream);
        Verify.NotNull(loadOptions);
        string name = fileName ?? "stream";
        VerifyOpen(stream, name);
        long start = stream.CanSeek ? stream.Position : 0;
        Image image = Read(ReadStream(stream, name, VerifyReadable), name, loadOptions);
        image.DataStreamContainer = new StreamContainer(stream, loadOptions.UnloadOnDispose);
        image.DataStart = start;
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
        Verify.NotNull(stream);
        VerifyOpen(stream, "stream");
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
        FileFormat format = FormatOf(data);
        Image image = format switch
        {
            FileFormat.IFC2X3 or FileFormat.IFC4 => new IfcReader(data, name, options).Read(),
            FileFormat.Cgm => new CgmImage(CgmFile.Load(data, name, options)),
            _ when RasterLoader.CanRead(format) => Vectorized(RasterLoader.Load(data, name, format, options), options),
            _ => new DxfImage(new DxfReader(data, name, options).Read()),
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
            return new DxfImage(Vectorizer.Trace(raster, how));
        }
    }

    private static FileFormat FormatOf(byte[] data)
    {
        FileFormat format = FormatDetector.Detect(data.AsSpan(0, Math.Min(data.Length, FormatDetector.HeadLength)));
        return format == FileFormat.Stp ? FormatDetector.StepFormat(data)
            : format; // the header may be longer than the head
    }

    // The first bytes tell what is not worth reading on. What names its schema behind them is asked again in the end.
    private static void VerifyReadable(ReadOnlySpan<byte> start, string name, bool isWhole)
    {
        FileFormat format = FormatDetector.Detect(start[..Math.Min(start.Length, FormatDetector.HeadLength)]);
        if (format == FileFormat.Stp)
        {
            if (!isWhole)
            {
                return;
            }

            format = FormatDetector.StepFormat(start);
        }

        if (FormatDetector.CanRead(format))
        {
            return;
        }

        string what = FormatDetector.IsIfcXml(start)
            ? "is a building model in XML (ifcXML) of an edition other than IFC2X3, which cannot be read yet"
            : format == FileFormat.Undefined
            ? "is of no known format; its first bytes are not those of a drawing interchange file"
            : $"is of format {Verify.NameOf(format)}, which cannot be read yet";
        string message = $"'{name}' {what}. Drawing interchange files (DXF), building models (IFC), " +
            "metafiles (CGM) and the usual pictures can be read.";
        throw format == FileFormat.Iges ? new IgesImageException(message) : new ImageLoadException(message);
    }

    /// <summary>Reads a file whole.</summary>
    /// <param name="filePath">The path.</param>
    /// <param name="verify">Looks at the first bytes and at all, and throws where they are of no use.</param>
    internal static byte[] ReadFile(string filePath, ContentCheck? verify = null)
    {
        VerifyFile(filePath);
        try
        {
            using FileStream stream = OddFileName.OpenToRead(filePath);
            return ReadStream(stream, filePath, verify);
        }
        catch (Exception e) when (e is IOException or UnauthorizedAccessException)
        {
            throw new ImageLoadException($"'{filePath}' could not be read: {e.Message}");
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
            throw new ImageLoadException($"'{filePath}' could not be read: {e.Message}");
        }
    }

    /// <summary>Reads a stream from its position to its end.</summary>
    /// <param name="stream">The stream.</param>
    /// <param name="name">What it is called in messages.</param>
    /// <param name="verify">Looks at the first bytes and at all, and throws where they are of no use.</param>
    internal static byte[] ReadStream(Stream stream, string name, ContentCheck? verify = null)
    {
        const int Block = 1 << 18; // a crossing a block, where the stream is Python's
        int expected = ExpectedLength(stream, name);
        byte[] data = expected == 0 ? new byte[Block] : GC.AllocateUninitializedArray<byte>(expected);
        Span<byte> start = data.AsSpan(0, Math.Min(data.Length, Block));
        int count = stream.ReadAtLeast(start, Math.Min(start.Length, FormatDetector.HeadLength), false);
        if (count == 0)
        {
            throw new ImageLoadException(NothingToRead(stream, name));
        }

        verify?.Invoke(data.AsSpan(0, count), name, false);
        for (int read = count; read > 0; count += read)
        {
            if (count == data.Length)
            {
                int next = stream.ReadByte(); // the announced end, most often
                if (next < 0)
                {
                    break;
                }

                VerifyLength(count + 1L, name);
                Array.Resize(ref data, (int)Math.Min(Math.Max(2L * count, Block), Array.MaxLength));
                data[count++] = (byte)next;
            }

            read = stream.Read(data, count, Math.Min(data.Length - count, Block));
        }

        Array.Resize(ref data, count);
        verify?.Invoke(data, name, true);
        return data;
    }

    private static int ExpectedLength(Stream stream, string name)
    {
        long length = stream.CanSeek ? Math.Max(0, stream.Length - stream.Position) : 0;
        VerifyLength(length, name);
        return (int)length;
    }

    private static void VerifyLength(long length, string name)
    {
        if (length > Array.MaxLength)
        {
            throw new ImageLoadException(
                $"'{name}' has {(length > Array.MaxLength + 1L ? $"{length}" : "more")} bytes; at most "
                    + $"{Array.MaxLength} can be read.");
        }
    }

    private static void VerifyOpen(Stream stream, string name)
    {
        if (!stream.CanRead)
        {
            throw new ImageLoadException($"'{name}' cannot be read: it is closed or was not opened for reading.");
        }
    }

    private static string NothingToRead(Stream stream, string name)
    {
        return stream.CanSeek && stream.Position > 0
            ? $"'{name}' has nothing behind its position, {stream.Position} bytes from the start; seek to where the "
            + $"drawing begins."
            : $"'{name}' is empty; a drawing was expected.";
    }

    private static void VerifyFile(string filePath)
    {
        Verify.NotNull(filePath);
        if (Directory.Exists(filePath))
        {
            throw new ImageLoadException($"'{filePath}' is a folder; name a file in it.");
        }

        if (!OddFileName.Exists(filePath))
        {
            throw new ImageLoadException($"'{filePath}' does not exist.");
        }
    }

    /// <summary>Looks at the bytes of a file, from its first on.</summary>
    /// <param name="start">The bytes.</param>
    /// <param name="name">What the file is called in messages.</param>
    /// <param name="isWhole">Whether these are all.</param>
    internal delegate void ContentCheck(ReadOnlySpan<byte> start, string name, bool isWhole);
}
