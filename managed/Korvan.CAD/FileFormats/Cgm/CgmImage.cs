using System;
using System.Linq;
using Korvan.CAD.Binding;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.Formats;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Rendering.Metafile;
using Korvan.CAD.Rendering.Scene;

namespace Korvan.CAD.FileFormats.Cgm;

/// <summary>A computer graphics metafile (ISO/IEC 8632) that can be drawn and converted. Its commands are live: changes
/// to them are drawn and saved.</summary>
public sealed class CgmImage : Image, IMetafileContent
{
    private readonly CgmFile _file;

    /// <summary>Creates a metafile with one empty picture, whose VDC extent is (0, 0) to (1000, 1000) and whose colours
    /// are direct. Primitives go after its <see cref="BeginPictureBody"/>.</summary>
    public CgmImage()
        : this(NewFile())
    {
    }

    /// <summary>Creates an image of a metafile.</summary>
    /// <param name="file">The metafile; it belongs to this image from now on.</param>
    public CgmImage(CgmFile file)
    {
        Verify.NotNull(file);
        _file = file;
    }

    /// <summary>Gets the metafile with its commands.</summary>
    public CgmFile File
    {
        get
        {
            VerifyNotDisposed();
            return _file;
        }
    }

    /// <summary>Gets the names of the pictures in their order; each is a page. Pictures without an identifier, or with
    /// one that is not unique, are named by their numbers.</summary>
    public string[] PictureNames => [.. Scene().Pictures.Select(static picture => picture.Name)];

    /// <inheritdoc/>
    public override int Width => Extent(static frame => frame.Region.Width);

    /// <inheritdoc/>
    public override int Height => Extent(static frame => frame.Region.Height);

    /// <summary>Gets the unit of the first picture's size: millimetres where the file states them.</summary>
    public override UnitType UnitType =>
        FirstFrame() is { MillimetresPerUnit: not null } ? UnitType.Millimeter : UnitlessDefaultUnitType;

    /// <inheritdoc/>
    public override bool IsCached => true;

    /// <inheritdoc/>
    public override void CacheData() => VerifyNotDisposed();

    /// <summary>Returns the texts of all pictures in drawing order, with their positions, heights and fonts.</summary>
    /// <returns>The texts.</returns>
    public TextInformation[] GetTexts()
    {
        VerifyNotDisposed();
        return [.. MetafileTexts.Collect(File)];
    }

    /// <inheritdoc/>
    public override string[] GetStrings() => [.. MetafileTexts.Collect(File).Select(static text => text.Text)];

    /// <inheritdoc/>
    VectorScene IPageContent.OpenScene() => Scene() is { Pictures.Count: > 0 } scene
        ? scene
        : throw new RenderException("The metafile has no picture that could be drawn.");

    /// <inheritdoc/>
    internal override string Content => $"{File.Commands.Count} commands";

    /// <inheritdoc/>
    private protected override FileFormat NativeFormat => FileFormat.Cgm;

    private static CgmFile NewFile()
    {
        const int side = 1000;
        var file = new CgmFile();
        file.Commands.AddRange(
        [
            new BeginMetafile("drawing"),
            new MetafileVersion(3),
            new MetafileElementList(),
            new VdcType { Value = VdcType.Type.Real },
            new RealPrecision { Value = Precision.Floating32 },
            new BeginPicture("drawing"),
            new ColourSelectionMode { Value = ColourSelectionMode.Type.Direct },
            new VdcExtent(new CgmPoint(0, 0), new CgmPoint(side, side)),
            new VdcRealPrecision { Value = Precision.Floating32 },
            new BeginPictureBody(),
            new EndPicture(),
            new EndMetafile(),
        ]);
        return file;
    }

    private MetafileScene Scene()
    {
        VerifyNotDisposed();
        return new MetafileScene(File);
    }

    private PictureFrame? FirstFrame() => Scene().Pictures is [MetafilePicture first, ..] ? first.Frame : null;

    private int Extent(Func<PictureFrame, double> of)
    {
        double size = FirstFrame() is PictureFrame frame ? of(frame) * (frame.MillimetresPerUnit ?? 1) : 0;
        return (int)Math.Min(int.MaxValue, Math.Ceiling(size - 1e-9));
    }
}
