using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>What dimensions have had in common since release 12, after what their kind needs.</summary>
public abstract partial class CadDimensionBaseR12 : CadBlockNameEntity
{
    internal CadDimensionBaseR12()
    {
    }

    /// <summary>Gets or sets the direction of the text against the default, in degrees. Group code 53.</summary>
    [CadAngle(53, Optional = true)]
    public double TextRotation { get; set; }

    /// <summary>Gets or sets the negative of the angle of the horizontal direction, in degrees. Group code
    /// 51.</summary>
    [CadAngle(51, Optional = true)]
    public double HorizontalDirection { get; set; }

    /// <summary>Gets or sets the unit normal of the plane of the dimension. Group codes 210, 220, 230.</summary>
    [Cad3DPoint(210, Optional = true)]
    public Cad3DPoint ExtrusionDirection { get; set; } = new(0, 0, 1);

    /// <summary>Gets or sets the name of the dimension style. Group code 3.</summary>
    [CadName(3, SymbolTable.DimensionStyle)]
    public string StyleName { get; set; } = "STANDARD";
}
