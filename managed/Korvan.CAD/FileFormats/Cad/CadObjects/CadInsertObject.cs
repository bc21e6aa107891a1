using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.Primitives;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>An insertion of a block, or a grid of insertions.</summary>
[CadObject("INSERT", Subclass = "AcDbBlockReference")]
[CadBits(
    "3BD InsertionPoint", "ExchangeScale()", "BD RotationAngle", "3BD ExtrusionDirection", "H Name",
    "ExchangeAttributes()", "if HasGrid: BS ColumnCount", "if HasGrid: BS RowCount", "if HasGrid: BD ColumnSpacing",
    "if HasGrid: BD RowSpacing")]
public partial class CadInsertObject : CadBlockNameEntity
{
    private bool _hasGrid;

    /// <summary>Creates the object with its defaults.</summary>
    public CadInsertObject()
    {
        Attributes = new EntityList<CadAttrib>("attributes", this);
    }

    /// <summary>Gets or sets the name of the block. Group code 2.</summary>
    [CadName(2, SymbolTable.BlockRecord)]
    public string Name { get; set; } = "";

    /// <summary>Gets or sets the position of the base point of the block, in object coordinates. Group codes 10, 20,
    /// 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint InsertionPoint { get; set; } = new();

    /// <summary>Gets or sets the scale along X. Group code 41.</summary>
    [CadDouble(41, Optional = true)]
    public double ScaleX { get; set; } = 1;

    /// <summary>Gets or sets the scale along Y. Group code 42.</summary>
    [CadDouble(42, Optional = true)]
    public double ScaleY { get; set; } = 1;

    /// <summary>Gets or sets the scale along Z. Group code 43.</summary>
    [CadDouble(43, Optional = true)]
    public double ScaleZ { get; set; } = 1;

    /// <summary>Gets or sets the rotation, in degrees. Group code 50.</summary>
    [CadAngle(50, Optional = true)]
    public double RotationAngle { get; set; }

    /// <summary>Gets or sets the number of columns. Group code 70.</summary>
    [CadShort(70, Optional = true)]
    public short ColumnCount { get; set; } = 1;

    /// <summary>Gets or sets the number of rows. Group code 71.</summary>
    [CadShort(71, Optional = true)]
    public short RowCount { get; set; } = 1;

    /// <summary>Gets or sets the distance of columns. Group code 44.</summary>
    [CadDouble(44, Optional = true)]
    public double ColumnSpacing { get; set; }

    /// <summary>Gets or sets the distance of rows. Group code 45.</summary>
    [CadDouble(45, Optional = true)]
    public double RowSpacing { get; set; }

    /// <summary>Gets or sets the unit normal of the plane that the insertion point is in. Group codes 210, 220,
    /// 230.</summary>
    [Cad3DPoint(210, Optional = true)]
    public Cad3DPoint ExtrusionDirection { get; set; } = new(0, 0, 1);

    /// <inheritdoc/>
    public override string GraphicsBlockName => Name;

    /// <summary>Gets the attributes of the insertion. The list is live.</summary>
    public IList<CadAttrib> Attributes { get; }

    /// <summary>Gets or sets the entity that ends the attributes; nothing when there are none.</summary>
    public CadSeqend? Seqend { get; set; }

    /// <summary>Gets whether the insertion is a grid of more than one.</summary>
    public bool IsGrid => ColumnCount > 1 || RowCount > 1;

    /// <summary>The marker of a single insertion.</summary>
    internal const string SingleMarker = "AcDbBlockReference";

    /// <summary>The marker of a grid; its codes are the same.</summary>
    internal const string GridMarker = "AcDbMInsertBlock";

    /// <inheritdoc/>
    internal override void BeginSubclass(ObjectExchange fields, string subclass)
    {
        base.BeginSubclass(fields, subclass == SingleMarker && IsGrid ? GridMarker : subclass);
    }

    /// <inheritdoc/>
    public override Point3D GetAnnotationPoint()
    {
        Vec3 place = ExtrusionDirection.ToPlane().Point(InsertionPoint.ToVec3());
        return new Point3D(place.X, place.Y, place.Z);
    }

    partial void OnReadField(int code, FieldReader reader, ref bool taken)
    {
        // Attributes follow or not: the list and its end tell.
        taken = code == 66;
    }

    partial void OnExchange(ObjectExchange fields)
    {
        if (fields.Includes(0, Attributes.Count > 0 || Seqend is not null))
        {
            fields.Bool(66, true);
        }
    }

    /// <summary>Gets or sets whether the reference has columns and rows in drawing databases, which have a type of its
    /// own for those.</summary>
    internal bool HasGrid
    {
        get => _hasGrid || IsGrid;
        set => _hasGrid = value;
    }

    private void ExchangeScale(BitExchange fields)
    {
        const int allOne = 3;
        const int allSame = 2;
        const int firstIsOne = 1;
        int kind = fields.Release < 2000 ? 0 : fields.BitPair(
            ScaleX != ScaleY || ScaleX != ScaleZ ? (ScaleX == 1 ? firstIsOne : 0) : ScaleX == 1 ? allOne : allSame);
        if (fields.Release < 2000)
        {
            ScaleX = fields.BitDouble(ScaleX);
            ScaleY = fields.BitDouble(ScaleY);
            ScaleZ = fields.BitDouble(ScaleZ);
            return;
        }

        ScaleX = kind is allOne or firstIsOne ? 1 : fields.RawDouble(ScaleX);
        ScaleY = kind is allOne or allSame ? ScaleX : fields.DoubleAfter(ScaleY, ScaleX);
        ScaleZ = kind is allOne or allSame ? ScaleX : fields.DoubleAfter(ScaleZ, ScaleX);
    }

    private void ExchangeAttributes(BitExchange fields)
    {
        if (fields.Bit(Attributes.Count > 0))
        {
            fields.ChildCount(true);
            fields.Children(this);
        }
    }
}
