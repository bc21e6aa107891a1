using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Annotations;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.FileFormats.Shx;
using Korvan.CAD.Formats;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.Input;
using Korvan.CAD.Rendering;
using Korvan.CAD.Rendering.Meshes;
using Korvan.CAD.Rendering.Scene;
using Korvan.CAD.WatermarkGuard;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>A drawing. Its lists are live: what is added, removed or changed is what is drawn and saved.</summary>
public partial class CadImage : Image, IDrawingContent
{
    private readonly CadDrawing _drawing;

    /// <summary>Creates an empty drawing of release 2018 with the standard tables.</summary>
    public CadImage()
        : this(new CadDrawing(DrawingSeed.Standard))
    {
    }

    internal CadImage(CadDrawing drawing)
    {
        _drawing = drawing;
    }

    /// <summary>Gets the variables of the drawing.</summary>
    public CadHeader Header => Drawing.Header;

    /// <summary>Gets the entities of model space, in drawing order.</summary>
    public IList<CadEntityBase> Entities => Drawing.Entities;

    /// <summary>Gets the entities of the active sheet of paper, in drawing order.</summary>
    public IList<CadEntityBase> PaperSpaceEntities => Drawing.PaperSpaceEntities;

    /// <summary>Gets the blocks by name. Model space is *Model_Space, the active sheet *Paper_Space.</summary>
    public CadBlockDictionary BlockEntities => Drawing.BlockEntities;

    /// <summary>Gets the block records.</summary>
    public CadBlockRecordList BlockRecords => Drawing.BlockRecords;

    /// <summary>Gets the layers.</summary>
    public CadLayersList Layers => Drawing.Layers;

    /// <summary>Gets the line types.</summary>
    public CadLineTypesDictionary LineTypes => Drawing.LineTypes;

    /// <summary>Gets the text styles and shape files.</summary>
    public CadStylesList Styles => Drawing.Styles;

    /// <summary>Gets the dimension styles.</summary>
    public CadDimensionDictionary DimensionStyles => Drawing.DimensionStyles;

    /// <summary>Gets the named views.</summary>
    public CadViewList Views => Drawing.Views;

    /// <summary>Gets the parts of the screen.</summary>
    public CadVportList ViewPorts => Drawing.ViewPorts;

    /// <summary>Gets the named coordinate systems.</summary>
    public CadUcsList UCSs => Drawing.UCSs;

    /// <summary>Gets the programs that attached data.</summary>
    public CadAppIdDictionary AppIdTables => Drawing.AppIdTables;

    /// <summary>Gets the classes that programs added.</summary>
    public CadClassList ClassEntities => Drawing.ClassEntities;

    /// <summary>Gets the layouts: the model first, then the sheets of paper in the order of their tabs. Drawings up
    /// to release 14 have none in their files; they get a model and a sheet.</summary>
    public CadLayoutDictionary Layouts => Drawing.Layouts;

    /// <summary>Gets the objects that are not drawn: dictionaries, layouts, styles and the like.</summary>
    public IList<CadObjectBase> Objects => Drawing.Objects;

    /// <summary>Gets the preview image, a bitmap without its file header; empty for none.</summary>
    public byte[] ThumbnailImage => _drawing.ThumbnailImage;

    /// <summary>Gets the preview image with its size; null where the drawing has none.</summary>
    public CadThumbnailImage? Thumbnail => ThumbnailImage.Length == 0 ? null : new CadThumbnailImage(ThumbnailImage);

    /// <summary>Gets the data section: preview images, and the geometry of solids from release 2013 on.</summary>
    public CadAcdsData AcdsData => Drawing.AcdsData;

    /// <summary>Gets how many entities are of a type that the library does not know. They survive loading and saving
    /// unchanged.</summary>
    public int UnknownEntityCount => Drawing.UnknownEntityCount;

    /// <summary>Gets how many objects that are not drawn are of a type that the library does not know. They survive
    /// loading and saving unchanged.</summary>
    public int UnknownObjectCount => Objects.FindAll(static item => item is RawObject).Count;

    /// <summary>Gets the release that the drawing was read from or is saved as.</summary>
    public CadAcadVersion Version => Header.AcadVersion;

    /// <inheritdoc/>
    public override UnitType UnitType => Drawing.UnitType;

    /// <summary>Gets the smallest coordinates of the entities of model space, in world coordinates; the origin in an
    /// empty drawing.</summary>
    public Cad3DPoint MinPoint => Extents().Min;

    /// <summary>Gets the largest coordinates of the entities of model space, in world coordinates; the origin in an
    /// empty drawing.</summary>
    public Cad3DPoint MaxPoint => Extents().Max;

    /// <inheritdoc/>
    public override int Width => DrawingExtents.ToWhole(MinPoint.X, MaxPoint.X);

    /// <inheritdoc/>
    public override int Height => DrawingExtents.ToWhole(MinPoint.Y, MaxPoint.Y);

    /// <inheritdoc/>
    public override int Depth => DrawingExtents.ToWhole(MinPoint.Z, MaxPoint.Z);

    /// <inheritdoc/>
    public override bool IsCached => true;

    /// <inheritdoc/>
    public override IAnnotationService AnnotationService => new DrawingAnnotations(Drawing);

    /// <inheritdoc/>
    public override IWatermarkGuardService WatermarkGuardService => new DrawingWatermark(Drawing);

    /// <summary>Gets the data of the drawing. An image that was disposed has none any more.</summary>
    internal CadDrawing Drawing
    {
        get
        {
            VerifyNotDisposed();
            return _drawing;
        }
    }

    /// <inheritdoc/>
    public override void CacheData() => VerifyNotDisposed();

    /// <summary>Adds an entity to model space.</summary>
    /// <param name="entity">The entity; it belongs to this drawing from now on. To add one that is in a drawing
    /// already, add its <see cref="CadEntityBase.Clone"/>.</param>
    /// <exception cref="CadException">The entity is in a list of entities already.</exception>
    public void AddEntity(CadEntityBase entity)
    {
        Verify.NotNull(entity);
        Entities.Add(entity);
    }

    /// <summary>Removes an entity from model space.</summary>
    /// <param name="entity">The entity.</param>
    /// <returns>Whether it was there.</returns>
    public bool RemoveEntity(CadEntityBase entity) => Entities.Remove(entity);

    /// <summary>Returns the entities of a layout, in drawing order. The list is live.</summary>
    /// <param name="layoutName">The name of the layout; upper and lower case are the same.</param>
    /// <returns>The entities of a layout, in drawing order.</returns>
    /// <exception cref="CadException">There is no such layout, or its block is missing.</exception>
    public IList<CadEntityBase> GetLayoutEntities(string layoutName)
    {
        CadLayout layout = Layouts[layoutName];
        return DrawingLinks.BlockOf(Drawing, layout)?.Entities
            ?? throw new CadException($"The block of the layout '{layoutName}' is missing.");
    }

    /// <summary>Returns the dynamic block that a block reference shows in one of its states.</summary>
    /// <param name="reference">The block reference.</param>
    /// <returns>The dynamic block; null where the reference is to another block.</returns>
    public CadBlockEntity? GetDynamicBlock(CadInsertObject reference)
    {
        Verify.NotNull(reference);
        return new DynamicBlocks(Drawing).BlockOf(reference);
    }

    /// <summary>Returns the visibility state in which a reference to a dynamic block is saved.</summary>
    /// <param name="reference">The block reference.</param>
    /// <returns>The name of the state; empty where the block has no visibility states.</returns>
    public string GetVisibilityState(CadInsertObject reference)
    {
        Verify.NotNull(reference);
        return new DynamicBlocks(Drawing).StateOf(reference);
    }

    /// <summary>Returns the faces of the visible entities of model space in world coordinates: faces, meshes and
    /// solids, and what has a thickness. References to blocks are followed.</summary>
    /// <returns>The faces of the visible entities of model space in world coordinates.</returns>
    /// <exception cref="CadException">A block contains itself, or there are more than 50 million faces.</exception>
    public DrawingEntity3D[] GetEntities3D()
    {
        VerifyNotDisposed();
        try
        {
            return
            [
                .. DrawingMeshes.Read(Drawing, null, new MeshRequest()).Instances()
                    .Select(static faces => new DrawingEntity3D(faces.Node, faces.Mesh, faces.World)),
            ];
        }
        catch (RenderException e)
        {
            throw new CadException(e.Message, e);
        }
    }

    /// <inheritdoc/>
    public override string[] GetStrings() => DrawingStrings.Collect(Drawing);

    /// <inheritdoc/>
    private protected override void OnDefaultUnitTypeChanged(UnitType value) => _drawing.DefaultUnitType = value;

    /// <inheritdoc/>
    internal override string? FilePath
    {
        get => base.FilePath;
        set
        {
            base.FilePath = value;
            _drawing.Folder = value is null ? null : FolderFiles.FolderOf(value);
            if (this is DwgImage)
            {
                ShapeFiles.AddNames(_drawing);
            }
        }
    }

    /// <inheritdoc/>
    internal override string Content => $"release {Version}, {Entities.Count} in model space";

    /// <inheritdoc/>
    private protected override FileFormat NativeFormat => DxfRelease.ToFileFormat(Version);

    /// <inheritdoc/>
    VectorScene IPageContent.OpenScene() => SceneReader.Read(Drawing);

    /// <inheritdoc/>
    CadDrawing IDrawingContent.Drawing => Drawing;

    /// <inheritdoc/>
    Scene3D.Scene IMeshContent.OpenMeshes(ExportContext? context, MeshRequest request) =>
        DrawingMeshes.Read(Drawing, context, request);

    private (Cad3DPoint Min, Cad3DPoint Max) Extents() =>
        DrawingExtents.OfModel(Drawing, () => TextMeasurer.TryCreate(Drawing));
}
