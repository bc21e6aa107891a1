using System.IO;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Bitmap;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cgm;
using Korvan.CAD.FileFormats.Ifc;
using Korvan.CAD.FileFormats.Ifc.Model;
using Korvan.CAD.Formats;
using Korvan.CAD.Formats.Dwg;
using Korvan.CAD.Input;
using Korvan.CAD.Raster;
using Korvan.CAD.Raster.Vectorizing;

namespace Korvan.CAD;

/// <summary>Loads images: asks the registry for the format of a source and for what reads it, and makes the image of
/// the
/// model that comes of it.</summary>
internal static class ImageLoader
{
    private const string StreamName = "stream";

    internal static Image Load(string filePath, LoadOptions loadOptions)
    {
        Verify.NotNull(loadOptions);
        Image image = SourceFile.Read(filePath, source => Read(source, loadOptions));
        image.FilePath = Path.GetFullPath(filePath);
        return image;
    }

    internal static Image Load(Stream stream, string? fileName, LoadOptions loadOptions)
    {
        Verify.NotNull(stream);
        Verify.NotNull(loadOptions);
        string name = fileName ?? StreamName;
        SourceWindow source = SourceFile.Open(stream, name);
        Image image = Read(source, loadOptions);
        image.DataStreamContainer = new StreamContainer(stream, loadOptions.UnloadOnDispose);
        image.DataStart = source.Start;
        image.FilePath = fileName is null ? null : Path.GetFullPath(fileName);
        return image;
    }

    internal static bool CanLoad(string filePath) =>
        UndecodableFileName.Exists(filePath) && FormatRegistry.CanRead(GetFileFormat(filePath));

    internal static bool CanLoad(Stream stream) => FormatRegistry.CanRead(GetFileFormat(stream));

    internal static FileFormat GetFileFormat(string filePath) => SourceFile.Read(filePath, FormatRegistry.Detect);

    internal static FileFormat GetFileFormat(Stream stream)
    {
        SourceWindow source = SourceFile.Open(stream, StreamName);
        FileFormat format = FormatRegistry.Detect(source);
        if (stream.CanSeek)
        {
            stream.Position = source.Start;
        }

        return format;
    }

    // What is not readable is told by as little of the source as that takes.
    private static FormatRecord Detect(SourceWindow source, out FileFormat format)
    {
        SourceFile.VerifyContent(source);
        format = FormatRegistry.Detect(source);
        if (!FormatRegistry.CanRead(format))
        {
            string message = $"'{source.Name}' {FormatRegistry.Explain(source, format)}. "
                + $"These formats can be read: {FormatRegistry.ReadableNames}.";
            throw format == FileFormat.Iges ? new IgesImageException(message) : new ImageLoadException(message);
        }

        FormatRecord record = FormatRegistry.Find(format)!;
        if (!record.ReadsInPieces)
        {
            source.All();
        }

        return record;
    }

    private static Image Read(SourceWindow source, LoadOptions options)
    {
        FormatRecord record;
        FileFormat format;
        using (Budget.Begin(null))
        {
            record = Detect(source, out format);
        }

        using Budget budget = Budget.Begin(source.Length);
        object model = record.Read!(source, format, options);
        source.Leave();
        Image image = Vectorized(ImageOf(model, format), options);
        image.LoadOptions = options;
        image.SourceFormat = format;
        image.SourceLength = source.Length;
        image.LoadedMemory = budget.Taken + budget.PixelMemory;
        return image;
    }

    private static Image ImageOf(object model, FileFormat format) => model switch
    {
        CadDrawing drawing when DwgFormat.Record.Has(format) => new DwgImage(drawing),
        CadDrawing drawing => new DxfImage(drawing),
        CgmFile metafile => new CgmImage(metafile),
        IfcContent building => new IfcImage(building),
        DecodedFile { Format: FileFormat.Bmp } bitmap => new BitmapImage(bitmap),
        _ => new RasterFileImage((DecodedFile)model),
    };

    private static Image Vectorized(Image image, LoadOptions options)
    {
        if (image is not RasterImage raster
            || options.VectorizationOptions is not { Method: not VectorizationMethod.None } how)
        {
            return image;
        }

        using (image)
        {
            return new DxfImage(Vectorizer.Trace(raster.Pixels, raster.HorizontalResolution, how));
        }
    }
}
