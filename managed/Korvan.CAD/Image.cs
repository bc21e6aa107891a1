using System;
using System.IO;
using System.Linq;
using Korvan.CAD.Annotations;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats;
using Korvan.CAD.Formats;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering;
using Korvan.CAD.WatermarkGuard;

namespace Korvan.CAD;

/// <summary>The content of a file: the base of the drawing, model and image classes of all formats.</summary>
public abstract partial class Image : DataStreamSupporter
{
    internal Image()
    {
    }

    /// <summary>Gets the rectangle from the origin with the size of the content, in whole units of
    /// <see cref="UnitType"/>.</summary>
    public Rectangle Bounds => new(0, 0, Width, Height);

    /// <summary>Gets the image of which this one is a page or frame; <see langword="null"/> for none.</summary>
    public Image? Container { get; internal set; }

    /// <summary>Gets the extent along Y in whole units, rounded up.</summary>
    public abstract int Height { get; }

    /// <summary>Gets the extent along Z in whole units, rounded up; 0 for flat content.</summary>
    public virtual int Depth => 0;

    /// <summary>Gets or sets the palette of indexed pixels; <see langword="null"/> for pixels with direct colours and
    /// for vector drawings.</summary>
    public IColorPalette? Palette { get; set; }

    /// <summary>Gets width and height in whole units.</summary>
    public Size Size => new(Width, Height);

    /// <summary>Gets the extent along X in whole units, rounded up.</summary>
    public abstract int Width { get; }

    /// <summary>Gets the unit of length of the content; <see cref="ImageOptions.UnitType.Unitless"/> if the file states
    /// none.</summary>
    public virtual UnitType UnitType => UnitType.Unitless;

    /// <summary>Gets or sets the unit that is assumed if the file states none.</summary>
    public UnitType UnitlessDefaultUnitType
    {
        get;
        set
        {
            field = value;
            OnDefaultUnitTypeChanged(value);
        }
    } = UnitType.Unitless;

    /// <summary>Gets the annotations; <see langword="null"/> for images of formats that have none.</summary>
    public virtual IAnnotationService? AnnotationService => null;

    /// <summary>Gets access to the watermark; <see langword="null"/> for images of formats that have none.</summary>
    public virtual IWatermarkGuardService? WatermarkGuardService => null;

    /// <summary>Gets the options that the image was read with.</summary>
    internal LoadOptions LoadOptions { get; set; } = new();

    /// <summary>Gets the position in its stream at which the image begins, in bytes.</summary>
    internal long DataStart { get; set; }

    /// <summary>Gets the length of the file that the image was read from, in bytes; null for images that were created
    /// in memory.</summary>
    internal long? SourceLength { get; set; }

    /// <summary>Gets the memory that the content took when it was loaded, in bytes.</summary>
    internal long LoadedMemory { get; set; }

    /// <summary>Gets the path that the image was read from, or <see langword="null"/>.</summary>
    internal virtual string? FilePath { get; set; }

    /// <summary>Loads a file; its format is detected from the content.</summary>
    /// <param name="filePath">The path of the file.</param>
    /// <param name="loadOptions">The load options.</param>
    /// <returns>The image.</returns>
    /// <exception cref="ImageLoadException">The file is missing, damaged or of a format that has no reader.</exception>
    public static Image Load(string filePath, LoadOptions loadOptions)
    {
        return ImageLoader.Load(filePath, loadOptions);
    }

    /// <summary>Loads a file; its format is detected from the content.</summary>
    /// <param name="filePath">The path of the file.</param>
    /// <returns>The image.</returns>
    /// <exception cref="ImageLoadException">The file is missing, damaged or of a format that has no reader.</exception>
    public static Image Load(string filePath) => Load(filePath, new LoadOptions());

    /// <summary>Loads a stream from its position to its end; the format is detected from the content.</summary>
    /// <param name="stream">The stream. The image keeps it as its <see cref="DataStreamSupporter.DataStreamContainer"/>
    /// until it is disposed, and <see cref="Save()"/> overwrites it if it is writable and seekable.</param>
    /// <param name="loadOptions">The load options.</param>
    /// <returns>The image.</returns>
    /// <exception cref="ImageLoadException">The content is damaged or of a format that has no reader.</exception>
    public static Image Load([PythonKept] Stream stream, LoadOptions loadOptions)
    {
        return ImageLoader.Load(stream, null, loadOptions);
    }

    /// <summary>Loads a stream from its position to its end; the format is detected from the content.</summary>
    /// <param name="stream">The stream. The image keeps it as its <see cref="DataStreamSupporter.DataStreamContainer"/>
    /// until it is disposed, and <see cref="Save()"/> overwrites it if it is writable and seekable.</param>
    /// <param name="fileName">The name for messages, whose folder is searched for files that the drawing refers
    /// to.</param>
    /// <param name="loadOptions">The load options.</param>
    /// <returns>The image.</returns>
    /// <exception cref="ImageLoadException">The content is damaged or of a format that has no reader.</exception>
    public static Image Load([PythonKept] Stream stream, string fileName, LoadOptions loadOptions)
    {
        return ImageLoader.Load(stream, fileName, loadOptions);
    }

    /// <summary>Loads a stream from its position to its end; the format is detected from the content.</summary>
    /// <param name="stream">The stream. The image keeps it as its <see cref="DataStreamSupporter.DataStreamContainer"/>
    /// until it is disposed, and <see cref="Save()"/> overwrites it if it is writable and seekable.</param>
    /// <returns>The image.</returns>
    /// <exception cref="ImageLoadException">The content is damaged or of a format that has no reader.</exception>
    public static Image Load([PythonKept] Stream stream) => Load(stream, new LoadOptions());

    /// <summary>Determines from the content whether a file can be loaded.</summary>
    /// <param name="filePath">The path of the file. A missing file cannot be loaded.</param>
    /// <returns>Whether the format can be loaded.</returns>
    public static bool CanLoad(string filePath) => ImageLoader.CanLoad(filePath);

    /// <summary>Determines from the content whether a file can be loaded.</summary>
    /// <param name="filePath">The path of the file. A missing file cannot be loaded.</param>
    /// <param name="loadOptions">The load options.</param>
    /// <returns>Whether the format can be loaded.</returns>
    public static bool CanLoad(string filePath, LoadOptions loadOptions)
    {
        Verify.NotNull(loadOptions);
        return ImageLoader.CanLoad(filePath);
    }

    /// <summary>Determines from the content whether a stream can be loaded. The position of a seekable stream is
    /// kept.</summary>
    /// <param name="stream">The stream.</param>
    /// <returns>Whether the format can be loaded.</returns>
    public static bool CanLoad(Stream stream) => ImageLoader.CanLoad(stream);

    /// <summary>Determines from the content whether a stream can be loaded. The position of a seekable stream is
    /// kept.</summary>
    /// <param name="stream">The stream.</param>
    /// <param name="loadOptions">The load options.</param>
    /// <returns>Whether the format can be loaded.</returns>
    public static bool CanLoad(Stream stream, LoadOptions loadOptions)
    {
        Verify.NotNull(loadOptions);
        return ImageLoader.CanLoad(stream);
    }

    /// <summary>Detects the format of a file from its content.</summary>
    /// <param name="filePath">The path of the file.</param>
    /// <returns>The format, or <see cref="FileFormat.Undefined"/>. Drawing interchange files of releases after 2013 are
    /// reported as <see cref="FileFormat.DxfCadR2013"/>.</returns>
    /// <exception cref="ImageLoadException">The file is missing or cannot be opened.</exception>
    public static FileFormat GetFileFormat(string filePath) => ImageLoader.GetFileFormat(filePath);

    /// <summary>Detects the format of a stream from its content. The position of a seekable stream is kept.</summary>
    /// <param name="stream">The stream.</param>
    /// <returns>The format, or <see cref="FileFormat.Undefined"/>.</returns>
    public static FileFormat GetFileFormat(Stream stream) => ImageLoader.GetFileFormat(stream);

    /// <summary>Overwrites the file or stream that the image was read from, in its own format.</summary>
    /// <exception cref="ImageSaveException">The object was created in memory, so that it has no such file or stream; or
    /// writing failed.</exception>
    public new void Save() => SaveOver();

    /// <inheritdoc/>
    internal override void SaveOver()
    {
        VerifyNotDisposed();
        if (FilePath is not null && DataStreamContainer is null)
        {
            AtomicFile.Write(FilePath, true, SaveData);
            return;
        }

        Stream stream = DataStreamContainer?.Stream
            ?? throw new ImageSaveException("The image has no file of its own yet; use save(file_path).");
        ImageSaver.Replace(stream, DataStart, SaveData);
    }

    /// <summary>Writes the image to a file in the format of the options.</summary>
    /// <param name="filePath">The path of the file. A file that exists is replaced only when writing succeeds.</param>
    /// <param name="options">The options; their class determines the format.</param>
    /// <exception cref="ImageSaveException">Writing failed, or this image cannot be converted to that
    /// format.</exception>
    public void Save(string filePath, ImageOptionsBase options)
    {
        VerifyNotDisposed();
        Verify.NotNull(options);
        VerifyCanSave(options);
        AtomicFile.Write(filePath, true, stream => Export(options, stream), timeout: options.Timeout);
    }

    /// <summary>Writes the image to a stream in the format of the options.</summary>
    /// <param name="stream">The stream to write to, from its position on; it stays open.</param>
    /// <param name="optionsBase">The options; their class determines the format.</param>
    /// <exception cref="ImageSaveException">Writing failed, or this image cannot be converted to that
    /// format.</exception>
    public void Save(Stream stream, ImageOptionsBase optionsBase)
    {
        VerifyNotDisposed();
        Verify.NotNull(stream);
        Verify.NotNull(optionsBase);
        VerifyCanSave(optionsBase);
        ImageSaver.WriteTo(stream, output => Export(optionsBase, output));
    }

    /// <summary>Returns whether the image can be written in the format of the options.</summary>
    /// <param name="options">The options.</param>
    /// <returns>Whether the image can be written.</returns>
    public bool CanSave(ImageOptionsBase options)
    {
        Verify.NotNull(options);
        return FormatRegistry.FindWriter(this, options.GetType()) is not null;
    }

    /// <summary>Returns the text strings of the content, in drawing order and without formatting codes.</summary>
    /// <returns>The strings.</returns>
    public virtual string[] GetStrings() => [];

    /// <summary>Returns a description of the image and its source in one line.</summary>
    /// <returns>The description.</returns>
    public override string ToString()
    {
        string name = GetType().Name;
        if (Disposed)
        {
            return $"{name}, disposed";
        }

        string from = FilePath is not null ? $" from '{FilePath}'" : DataStreamContainer is not null ? " from a stream"
            : "";
        return $"{name} of {Content}{from}";
    }

    /// <summary>Gets a short description of the content.</summary>
    internal abstract string Content { get; }

    /// <summary>Gets the format of content that was not read from a file.</summary>
    private protected abstract FileFormat NativeFormat { get; }

    /// <summary>Gets or sets the format of the file that the image was read from; undefined for images that were
    /// created in memory.</summary>
    internal FileFormat SourceFormat { get; set; }

    /// <inheritdoc/>
    internal override void SaveData(Stream stream) => WriteOwn(OwnOptions(SourceOrNative, ""), stream);

    /// <inheritdoc/>
    internal override Action<Stream> OwnWriter(string filePath)
    {
        string extension = Path.GetExtension(filePath);
        FileFormatInfo[] meant = extension.Length > 1 ? FileFormatInfo.FindByExtension(extension) : [];
        if (meant.Length == 0)
        {
            return SaveData;
        }

        // Content from a format that cannot be written can still be saved in its native format.
        FileFormat[] own = [SourceOrNative, NativeFormat];
        FileFormat chosen = Array.Find(own, format => Array.Exists(meant, info => info.Format == format)
            && FormatRegistry.OwnOptions(this, new SaveTarget(format, extension)) is not null);
        if (chosen != FileFormat.Undefined)
        {
            return stream => WriteOwn(OwnOptions(chosen, extension), stream);
        }

        string[] classes = [.. FormatRegistry.OptionTypesFor(this, [.. meant.Select(static info => info.Format)])
            .Select(static type => type.Name)];
        throw new ImageSaveException(
            $"'{filePath}' has the extension of {meant[0].Name}, but without options the image is written as "
            + $"{FileFormatInfo.Get(SourceOrNative).Name}; "
            + (classes.Length > 0 ? $"pass {string.Join(" or ", classes)}." : "it cannot be written in that format."));
    }

    private FileFormat SourceOrNative => SourceFormat == FileFormat.Undefined ? NativeFormat : SourceFormat;

    private ImageOptionsBase OwnOptions(FileFormat format, string extension) =>
        FormatRegistry.OwnOptions(this, new SaveTarget(format, extension))
        ?? throw new ImageSaveException(
            (SourceFormat == FileFormat.Undefined
                ? $"{GetType().Name} is of format {FileFormatInfo.Get(format).Name}, which cannot be written yet; "
                : $"{GetType().Name} was read from {FileFormatInfo.Get(format).Name}, which it cannot be written back "
                    + "as; ")
            + $"pass {OptionNames()} and the path of another file.");

    private void WriteOwn(ImageOptionsBase options, Stream stream)
    {
        using Budget budget = Budget.Begin(SourceLength, options.Timeout, LoadedMemory);
        ExportContext context = new(options, LoadOptions);
        FormatRegistry.FindWriter(this, options.GetType())!.Write(this, context, new WatchedStream(stream));
    }

    private string OptionNames() =>
        string.Join(", ", FormatRegistry.OptionTypesFor(this).Select(static type => type.Name));

    /// <summary>Exports, and stores the result in the options.</summary>
    private void Export(ImageOptionsBase options, Stream stream)
    {
        FormatWriter writer = FormatRegistry.FindWriter(this, options.GetType())!;
        options.RenderResult = null;
        options.VerifyHonoured(writer.KindOf(this)!.Value);
        using Budget budget = Budget.Begin(SourceLength, options.Timeout, LoadedMemory);
        var context = new ExportContext(options, LoadOptions);
        stream = new WatchedStream(stream);
        if (options.Source is null)
        {
            writer.Write(this, context, stream);
        }
        else
        {
            using var output = new MemoryStream();
            writer.Write(this, context, output);
            ImageSaver.WriteTwice(output, stream, options.Source);
        }

        options.RenderResult = context.Result();
    }

    private protected virtual void OnDefaultUnitTypeChanged(UnitType value)
    {
    }

    private void VerifyCanSave(ImageOptionsBase options)
    {
        if (!CanSave(options))
        {
            throw new ImageSaveException(
                $"{GetType().Name} cannot be saved with {options.GetType().Name}: it is not written as "
                    + $"{Verify.NameOf(options.TargetFormat)}; pass {OptionNames()}.");
        }
    }
}
