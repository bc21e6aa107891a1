using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A wedge in the history of a solid.</summary>
[CadSequence]
[CadMarkers(Leading = "AcDbShPrimitive")]
[CadObject("ACSH_WEDGE_CLASS", Subclass = "AcDbShWedge")]
[CadBits("base", "BL PrimitiveMajorVersion", "BL PrimitiveMinorVersion", "BD Length", "BD Width", "BD Height")]
public partial class CadAcshWedgeClass : CadAcshHistoryNode
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadAcshWedgeClass()
    {
    }

    /// <summary>Gets or sets the major version of the program that wrote the solid. Group code 90.</summary>
    [CadInt(90)]
    public int PrimitiveMajorVersion { get; set; } = 33;

    /// <summary>Gets or sets the minor version of the program that wrote the solid. Group code 91.</summary>
    [CadInt(91)]
    public int PrimitiveMinorVersion { get; set; } = 29;

    /// <summary>Gets or sets the size along X. Group code 40.</summary>
    [CadDouble(40)]
    public double Length { get; set; }

    /// <summary>Gets or sets the size along Y. Group code 41.</summary>
    [CadDouble(41)]
    public double Width { get; set; }

    /// <summary>Gets or sets the size along Z. Group code 42.</summary>
    [CadDouble(42)]
    public double Height { get; set; }
}
