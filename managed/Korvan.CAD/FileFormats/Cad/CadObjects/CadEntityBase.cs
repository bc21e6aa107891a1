using Korvan.CAD.Annotations;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.Measurement;
using Korvan.CAD.Primitives;
using Korvan.CAD.Rendering.Geometry;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>Something that is drawn.</summary>
[CadObject("", Subclass = "AcDbEntity")]
public abstract partial class CadEntityBase : CadOwnedObjectBase, IMeasurableEntity, IAnnotateable
{
    internal CadEntityBase()
    {
    }

    /// <summary>Gets the type.</summary>
    public CadEntityTypeName TypeName => EntityTypeNames.Parse(DxfName);

    /// <summary>Gets the type as files name it, group code 0.</summary>
    public string TypeNameText => DxfName;

    /// <summary>Gets the handle, which names the entity within its drawing.</summary>
    public string UniqueId => ObjectHandle;

    /// <summary>Gets or sets the space that the entity lies in. Group code 67.</summary>
    [CadShort(67, Optional = true)]
    public CadEntitySpaceMode SpaceMode { get; set; }

    /// <summary>Gets or sets the name of the layout of an entity in paper space. Group code 410.</summary>
    [CadString(410, Optional = true, Since = 2000)]
    public string LayoutTabName { get; set; } = "";

    /// <summary>Gets or sets the name of the layer. Group code 8.</summary>
    [CadString(8)]
    public string LayerName { get; set; } = "0";

    /// <summary>Gets or sets the name of the line type; "BYLAYER" and "BYBLOCK" take it from there. Group
    /// code 6.</summary>
    [CadString(6, Optional = true)]
    public string LineTypeName { get; set; } = "BYLAYER";

    /// <summary>Gets or sets the handle of the material in hexadecimal; empty for that of the layer. Group
    /// code 347.</summary>
    [CadString(347, Optional = true, Since = 2007)]
    public string Material { get; set; } = "";

    /// <summary>Gets or sets the number of the colour: 1 to 255, 256 by layer, 0 by block. Group code 62.</summary>
    [CadShort(62, Optional = true)]
    public short ColorId { get; set; } = 256;

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
    [CadString(390, Optional = true, Since = 2000)]
    public string PlotStyle { get; set; } = "";

    /// <summary>Gets or sets the shadows of the entity. Group code 284.</summary>
    [CadShort(284, Optional = true, Since = 2007)]
    public CadShadowMode ShadowMode { get; set; }

    /// <summary>Gives the point that an annotation points to: the middle of the entity, in world coordinates.</summary>
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
