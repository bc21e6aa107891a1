using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A cylinder in the history of a solid.</summary>
[CadSequence]
[CadMarkers(Leading = "AcDbShPrimitive")]
[CadObject("ACSH_CYLINDER_CLASS", Subclass = "AcDbShCylinder")]
[CadBits(
    "base", "BL PrimitiveMajorVersion", "BL PrimitiveMinorVersion", "BD Height", "BD MajorRadius", "BD MinorRadius",
    "BD XRadius")]
public partial class CadAcshCylinderClass : CadAcshHistoryNode
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadAcshCylinderClass()
    {
    }

    /// <summary>Gets or sets the major version of the program that wrote the solid. Group code 90.</summary>
    [CadInt(90)]
    public int PrimitiveMajorVersion { get; set; } = 33;

    /// <summary>Gets or sets the minor version of the program that wrote the solid. Group code 91.</summary>
    [CadInt(91)]
    public int PrimitiveMinorVersion { get; set; } = 29;

    /// <summary>Gets or sets the height. Group code 40.</summary>
    [CadDouble(40)]
    public double Height { get; set; }

    /// <summary>Gets or sets the major radius of the base. Group code 41.</summary>
    [CadDouble(41)]
    public double MajorRadius { get; set; }

    /// <summary>Gets or sets the minor radius of the base. Group code 42.</summary>
    [CadDouble(42)]
    public double MinorRadius { get; set; }

    /// <summary>Gets or sets the radius along X. Group code 43.</summary>
    [CadDouble(43)]
    public double XRadius { get; set; }
}
