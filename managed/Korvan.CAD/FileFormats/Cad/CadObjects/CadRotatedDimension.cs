using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A dimension along a given direction.</summary>
[CadObject("DIMENSION", Subclass = "AcDbRotatedDimension")]
[CadBits("base", "BD RotationAngle")]
public partial class CadRotatedDimension : CadAlignedDimension
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadRotatedDimension()
    {
        TypeOfDimension = (short)CadDimensionType.Rotated;
    }
}
