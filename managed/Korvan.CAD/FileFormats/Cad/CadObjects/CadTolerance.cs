using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A frame with tolerances of form and position.</summary>
[CadObject("TOLERANCE", Subclass = "AcDbFcf")]
[CadBits(
    "-1997 BS", "-1997 BD", "-1997 BD", "3BD InsertionPoint", "3BD DirectionVector", "3BD ExtrusionDirection",
    "T VisualRepresentation", "H DimensionStyleName")]
public partial class CadTolerance : CadEntityBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadTolerance()
    {
    }

    /// <summary>Gets or sets the name of the dimension style. Group code 3.</summary>
    [CadName(3, SymbolTable.DimensionStyle)]
    public string DimensionStyleName { get; set; } = "STANDARD";

    /// <summary>Gets or sets the insertion point, in world coordinates. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint InsertionPoint { get; set; } = new();

    /// <summary>Gets or sets the text with its codes for the frames. Group code 1.</summary>
    [CadString(1)]
    public string VisualRepresentation { get; set; } = "";

    /// <summary>Gets or sets the unit normal of the plane of the frame. Group codes 210, 220, 230.</summary>
    [Cad3DPoint(210, Optional = true)]
    public Cad3DPoint ExtrusionDirection { get; set; } = new(0, 0, 1);

    /// <summary>Gets or sets the direction of the frame, in world coordinates. Group codes 11, 21, 31.</summary>
    [Cad3DPoint(11)]
    public Cad3DPoint DirectionVector { get; set; } = new(1, 0, 0);
}
