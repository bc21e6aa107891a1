namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A straight line.</summary>
[CadObject("LINE", Subclass = "AcDbLine")]
public partial class CadLine : CadExtrudedEntityBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadLine()
    {
    }

    /// <summary>Gets or sets the start point, in world coordinates. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint FirstPoint { get; set; } = new();

    /// <summary>Gets or sets the end point, in world coordinates. Group codes 11, 21, 31.</summary>
    [Cad3DPoint(11)]
    public Cad3DPoint SecondPoint { get; set; } = new();
}
