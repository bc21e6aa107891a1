using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A dimension along the line between two points.</summary>
[CadObject("DIMENSION", Subclass = "AcDbAlignedDimension")]
[CadBits("base", "3BD FirstExtensionPoint", "3BD SecondExtensionPoint", "3BD DefinitionPoint", "BD ObliqueAngle")]
public partial class CadAlignedDimension : CadDimensionBase
{
    /// <summary>Gets or sets the start of the first extension line, in world coordinates. Group codes 13, 23,
    /// 33.</summary>
    [Cad3DPoint(13)]
    public Cad3DPoint FirstExtensionPoint { get; set; } = new();

    /// <summary>Gets or sets the start of the second extension line, in world coordinates. Group codes 14, 24,
    /// 34.</summary>
    [Cad3DPoint(14)]
    public Cad3DPoint SecondExtensionPoint { get; set; } = new();

    /// <summary>Gets or sets the direction of the dimension line, in degrees; of rotated dimensions only. Group code
    /// 50.</summary>
    [CadAngle(50, Optional = true)]
    public double RotationAngle { get; set; }

    /// <summary>Gets or sets the direction of the extension lines, in degrees; 0 for across the dimension line. Group
    /// code 52.</summary>
    [CadAngle(52, Optional = true)]
    public double ObliqueAngle { get; set; }

    /// <summary>Creates the object with its defaults.</summary>
    public CadAlignedDimension()
    {
        TypeOfDimension = (short)CadDimensionType.Aligned;
    }
}
