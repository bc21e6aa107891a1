using Korvan.CAD.FileFormats.Cad.CadConsts;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A dimension along a given direction.</summary>
[CadObject("DIMENSION", Subclass = "AcDbRotatedDimension")]
public partial class CadRotatedDimension : CadAlignedDimension
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadRotatedDimension()
    {
        TypeOfDimension = (short)CadDimensionType.Rotated;
    }
}
