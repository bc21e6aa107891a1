using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model.Dimensions;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>What dimensions have in common.</summary>
[CadObject("DIMENSION", Subclass = "AcDbDimension")]
[CadBits(
    "2010+ RC Version", "3BD ExtrusionDirection", "2RD MiddleOfTextPoint", "ExchangeElevationAndFlags()", "T Text",
    "BD TextRotation", "BD HorizontalDirection", "BD = 1", "BD = 1", "BD = 1", "BD", "2000+ BS AttachmentPoint",
    "2000+ BS LineSpacingStyle", "2000+ BD LineSpacingFactor", "2000+ BD StoredMeasurement", "2007+ B", "2007+ B",
    "2007+ B", "2RD InsertionPoint", "H StyleName", "H BlockName")]
public abstract partial class CadDimensionBase : CadDimensionBaseR12
{
    /// <summary>The kind that files state of dimensions of a radius with a jog.</summary>
    internal const short JoggedType = 9;

    private const int Kinds = 15;
    private const int PlainKinds = 7;

    internal CadDimensionBase()
    {
    }

    /// <summary>Gets or sets the version of the object. Group code 280.</summary>
    [CadShort(280, Optional = true, Since = 2010)]
    public short Version { get; set; }

    /// <summary>Gets or sets the name of the block with the graphics of the dimension; empty when there is none yet.
    /// Group code 2.</summary>
    [CadName(2, SymbolTable.BlockRecord, Optional = true)]
    public string BlockName { get; set; } = "";

    /// <summary>Gets or sets the point that the dimension line is defined by, in world coordinates. Group codes 10,
    /// 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint DefinitionPoint { get; set; } = new();

    /// <summary>Gets or sets the middle of the text, in object coordinates. Group codes 11, 21, 31.</summary>
    [Cad3DPoint(11)]
    public Cad3DPoint MiddleOfTextPoint { get; set; } = new();

    /// <summary>Gets or sets the insertion point of the block of repeated dimensions, in object coordinates. Group
    /// code 12, 22, 32.</summary>
    [Cad3DPoint(12, Optional = true)]
    public Cad3DPoint InsertionPoint { get; set; } = new();

    /// <summary>Gets or sets the kind and flags of the dimension; see CadDimensionType. Group code 70.</summary>
    [CadShort(70)]
    public short TypeOfDimension { get; set; }

    /// <summary>Gets or sets which point of the text is at its position. Group code 71.</summary>
    [CadShort(71, Optional = true)]
    public CadAttachmentPoint AttachmentPoint { get; set; } = CadAttachmentPoint.MiddleCenter;

    /// <summary>Gets or sets how the distance of text lines is measured. Group code 72.</summary>
    [CadShort(72, Optional = true)]
    public CadLineSpacing LineSpacingStyle { get; set; } = CadLineSpacing.AtLeast;

    /// <summary>Gets or sets the distance of text lines as a part of the default. Group code 41.</summary>
    [CadDouble(41, Optional = true)]
    public double LineSpacingFactor { get; set; } = 1;

    /// <summary>Gets or sets the measured length in drawing units, or the angle in radians. Files state the length with
    /// the linear factor of the dimension style. Where neither the file nor a program states it, or it is negative, it
    /// is measured between the points of the dimension. Group code 42.</summary>
    public double ActualMeasurement
    {
        get => StoredMeasurement > 0 ? StoredMeasurement : DimensionMeasure.Of(this);
        set => StoredMeasurement = value;
    }

    /// <summary>Gets or sets the text; empty or "&lt;&gt;" for the measurement, a blank for none. Group code
    /// 1.</summary>
    [CadString(1, Optional = true)]
    public string Text { get; set; } = "";

    /// <inheritdoc/>
    public override string GraphicsBlockName => BlockName;

    /// <summary>Gets the kind of the dimension without its flags.</summary>
    public CadDimensionType DimensionType => (TypeOfDimension & Kinds) == JoggedType ? CadDimensionType.Radius
        : (CadDimensionType)(TypeOfDimension & PlainKinds);

    /// <summary>Gets or sets the measurement as it is in the file; 0 for none.</summary>
    [CadDouble(42, Optional = true)]
    internal double StoredMeasurement { get; set; }

    // One elevation for the points of the plane; of the flags, one is stored as its opposite.
    private void ExchangeElevationAndFlags(BitExchange fields)
    {
        const int ownBlock = 32;
        const int userPosition = 128;
        fields.Elevation(MiddleOfTextPoint, InsertionPoint);
        int flags = ((TypeOfDimension & userPosition) == 0 ? 1 : 0) | ((TypeOfDimension & ownBlock) != 0 ? 2 : 0);
        flags = fields.RawByte(flags);
        TypeOfDimension = (short)((TypeOfDimension & ~(ownBlock | userPosition))
            | ((flags & 1) == 0 ? userPosition : 0) | ((flags & 2) != 0 ? ownBlock : 0));
    }
}
