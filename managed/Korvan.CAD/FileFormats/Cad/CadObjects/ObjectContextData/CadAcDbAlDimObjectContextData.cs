using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.ObjectContextData;

/// <summary>The appearance of an aligned dimension at one annotation scale.</summary>
[CadSequence]
[CadObject("ACDB_ALDIMOBJECTCONTEXTDATA_CLASS", Subclass = "AcDbDimensionObjectContextData")]
[CadBits(
    "base", "2RD TextPoint", "B IsDefaultTextLocation", "BD TextRotation", "H BlockName", "B IsBlockUsed",
    "B ForceDimensionLine", "B SuppressOutsideLines", "B FitOption", "B ForceTextInside", "B TextMovement",
    "RC OverrideCode", "B HasSecondArrow", "B FlipSecondArrow", "B FlipFirstArrow", "3BD DimensionLinePoint")]
public partial class CadAcDbAlDimObjectContextData : CadAcDbObjectContextData
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadAcDbAlDimObjectContextData()
    {
    }

    /// <summary>Gets or sets the name of the block with the graphics. Group code 2.</summary>
    [CadName(2, SymbolTable.BlockRecord)]
    public string BlockName { get; set; } = "";

    /// <summary>Gets or sets whether the block is used. Group code 293.</summary>
    [CadBool(293)]
    public bool IsBlockUsed { get; set; }

    /// <summary>Gets or sets the position of the text, in object coordinates. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint TextPoint { get; set; } = new();

    /// <summary>Gets or sets whether the position of the text is the default one. Group code 294.</summary>
    [CadBool(294)]
    public bool IsDefaultTextLocation { get; set; } = true;

    /// <summary>Gets or sets the rotation of the text, in radians. Group code 140.</summary>
    [CadDouble(140)]
    public double TextRotation { get; set; }

    /// <summary>Gets or sets whether a line is drawn between the extension lines when the text is outside. Group code
    /// 298.</summary>
    [CadBool(298)]
    public bool ForceDimensionLine { get; set; }

    /// <summary>Gets or sets whether lines outside of the extension lines are left out. Group code 291.</summary>
    [CadBool(291)]
    public bool SuppressOutsideLines { get; set; }

    /// <summary>Gets or sets what moves when there is no room: 0 text and arrows, 1 the arrows, 2 the text, 3 the
    /// better. Group code 70.</summary>
    [CadShort(70)]
    public short FitOption { get; set; }

    /// <summary>Gets or sets whether the text is always between the extension lines. Group code 292.</summary>
    [CadBool(292)]
    public bool ForceTextInside { get; set; }

    /// <summary>Gets or sets what happens when the text is moved: 0 the line follows, 1 a leader is added, 2 nothing.
    /// Group code 71.</summary>
    [CadShort(71)]
    public short TextMovement { get; set; }

    /// <summary>Gets or sets what goes before the style, a bit for each. Group code 280.</summary>
    [CadShort(280)]
    public short OverrideCode { get; set; }

    /// <summary>Gets or sets whether the second arrow is stated. Group code 295.</summary>
    [CadBool(295)]
    public bool HasSecondArrow { get; set; }

    /// <summary>Gets or sets whether the second arrow is reversed. Group code 296.</summary>
    [CadBool(296)]
    public bool FlipSecondArrow { get; set; }

    /// <summary>Gets or sets whether the first arrow is reversed. Group code 297.</summary>
    [CadBool(297)]
    public bool FlipFirstArrow { get; set; }

    /// <summary>Gets or sets a point of the dimension line, in world coordinates. Group codes 11, 21, 31.</summary>
    [Cad3DPoint(11)]
    [CadSubclass("AcDbAlignedDimensionObjectContextData")]
    public Cad3DPoint DimensionLinePoint { get; set; } = new();
}
