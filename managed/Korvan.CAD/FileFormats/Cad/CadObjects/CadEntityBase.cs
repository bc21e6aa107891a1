using System;
using Korvan.CAD.Annotations;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Measurement;
using Korvan.CAD.Primitives;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>Something that is drawn.</summary>
[CadObject("", Subclass = "AcDbEntity")]
public abstract partial class CadEntityBase : CadOwnedObjectBase, IMeasurableEntity, IAnnotateable
{
    private const short AciByBlock = 0;
    private const short AciByLayer = 256;

    internal CadEntityBase()
    {
    }

    /// <summary>Gets the type.</summary>
    public CadEntityTypeName TypeName => EntityTypeNames.Parse(DxfName);

    /// <summary>Gets the type as files name it, group code 0.</summary>
    public string TypeNameText => DxfName;

    /// <summary>Gets the handle, which names the entity within its drawing.</summary>
    public string UniqueId => ObjectHandle;

    /// <summary>Gets the coordinate system that the points of the entity are in.</summary>
    public CadEntityCoordinates CoordinateSystem => EntityCoordinates.Of(this);

    /// <summary>Gets or sets the space that the entity lies in. Group code 67.</summary>
    [CadShort(67, Optional = true)]
    public CadEntitySpaceMode SpaceMode { get; set; }

    /// <summary>Gets or sets the name of the layout of an entity in paper space. Group code 410.</summary>
    [CadString(410, Optional = true, Since = 2000)]
    public string LayoutTabName { get; set; } = "";

    /// <summary>Gets or sets the name of the layer. Group code 8.</summary>
    /// <exception cref="CadException">The name has a character that layers cannot have in their names.</exception>
    public string LayerName
    {
        get => StoredLayer;
        set
        {
            Verify.NotNull(value);
            SymbolNames.VerifyLayer(value);
            StoredLayer = value;
        }
    }

    /// <summary>Gets or sets the name of the line type; "BYLAYER" and "BYBLOCK" take it from there. Group
    /// code 6.</summary>
    [CadName(6, SymbolTable.LineType, Optional = true)]
    public string LineTypeName { get; set; } = "BYLAYER";

    /// <summary>Gets or sets the handle of the material in hexadecimal; empty for that of the layer. Group
    /// code 347.</summary>
    [CadHandle(347, Optional = true, Since = 2007)]
    public string Material { get; set; } = "";

    /// <summary>Gets or sets the index of the colour: 1 to 255, 256 by layer, 0 by block. Group code 62.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is not 0 to 256.</exception>
    public short ColorId
    {
        get => StoredColor;
        set
        {
            Verify.InRange(value, AciByBlock, AciByLayer);
            StoredColor = value;
        }
    }

    /// <summary>Gets or sets the line weight in hundredths of a millimetre; -1 by layer, -2 by block, -3 the
    /// default. Group code 370.</summary>
    [CadShort(370, Optional = true, Since = 2000)]
    public short LineWeight { get; set; } = -1;

    /// <summary>Gets or sets the factor on the lengths of the line type. Group code 48.</summary>
    [CadDouble(48, Optional = true)]
    public double LinetypeScale { get; set; } = 1;

    /// <summary>Gets or sets whether the entity is hidden: 0 no, 1 yes. Group code 60.</summary>
    [CadShort(60, Optional = true)]
    public short Visible { get; set; }

    /// <summary>Gets or sets the colour as 0xRRGGBB, which goes before <see cref="ColorId"/>; -1 for none. Group
    /// code 420.</summary>
    [CadInt(420, Optional = true, Since = 2004)]
    public int ColorValue { get; set; } = -1;

    /// <summary>Gets or sets the name of the colour in its book; empty for none. Group code 430.</summary>
    [CadString(430, Optional = true, Since = 2004)]
    public string ColorName { get; set; } = "";

    /// <summary>Gets or sets the transparency: 0 by layer, 0x01000000 by block, 0x02000000 plus the opacity 0 to
    /// 255. Group code 440.</summary>
    [CadInt(440, Optional = true, Since = 2004)]
    public int Transparency { get; set; }

    /// <summary>Gets or sets the handle of the plot style in hexadecimal; empty for that of the layer. Group
    /// code 390.</summary>
    [CadHandle(390, Optional = true, Since = 2000)]
    public string PlotStyle { get; set; } = "";

    /// <summary>Gets or sets the shadows of the entity. Group code 284.</summary>
    [CadShort(284, Optional = true, Since = 2007)]
    public CadShadowMode ShadowMode { get; set; }

    /// <summary>Gets or sets the name of the layer as it is in the file, whatever it is.</summary>
    [CadName(8, SymbolTable.Layer)]
    internal string StoredLayer { get; set; } = "0";

    /// <summary>Gets or sets the index of the colour as it is in the file, whatever it is.</summary>
    [CadColor(62, Optional = true)]
    internal short StoredColor { get; set; } = 256;

    /// <summary>Gets or sets the list that the entity is in.</summary>
    internal IEntityList? Home { get; set; }

    /// <summary>Gets or sets how often it is in the list: once, but for moments.</summary>
    internal int Places { get; set; }

    /// <summary>Makes a copy that belongs to no drawing and has no handle yet, with copies of vertices and attributes.
    /// What it names, as layers, blocks and styles, stays with the drawing; layers that a drawing lacks are added when
    /// it is saved.
    /// </summary>
    /// <returns>An entity of the same class.</returns>
    /// <exception cref="CadException">The entity holds values that drawings cannot hold, as numbers that are not
    /// finite.</exception>
    public CadEntityBase Clone() => EntityCopy.Of(this);

    /// <summary>Returns what the entity is, its layer and its position in one line.</summary>
    /// <returns>What the entity is, its layer and its position in one line.</returns>
    public override string ToString() => EntityText.Of(this);

    /// <summary>Returns the point that an annotation points to: the middle of the entity, in world
    /// coordinates.</summary>
    /// <returns>The point that an annotation points to.</returns>
    /// <exception cref="CadException">The entity takes no room of its own, as a line without end.</exception>
    public virtual Point3D GetAnnotationPoint()
    {
        Extents extents = new();
        EntityExtents.Add(this, extents);
        if (extents.IsEmpty)
        {
            throw new CadException($"An entity of the type {TypeNameText} has no middle; annotate a point instead.");
        }

        (Cad3DPoint min, Cad3DPoint max) = (extents.Min, extents.Max);
        return new Point3D((min.X + max.X) / 2, (min.Y + max.Y) / 2, (min.Z + max.Z) / 2);
    }

    /// <inheritdoc/>
    public double? GetLength() => EntityMeasure.Length(this);

    /// <inheritdoc/>
    public double? GetArea() => EntityMeasure.Area(this);
}
