using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A pyramid in the history of a solid.</summary>
[CadSequence]
[CadMarkers(Leading = "AcDbShPrimitive")]
[CadObject("ACSH_PYRAMID_CLASS", Subclass = "AcDbShPyramid")]
[CadBits(
    "base", "BL PrimitiveMajorVersion", "BL PrimitiveMinorVersion", "BD Height", "BL SideCount", "BD Radius",
    "BD TopRadius")]
public partial class CadAcshPyramidClass : CadAcshHistoryNode
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadAcshPyramidClass()
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

    /// <summary>Gets or sets the number of sides. Group code 92.</summary>
    [CadInt(92)]
    public int SideCount { get; set; } = 4;

    /// <summary>Gets or sets the radius of the circle around the base. Group code 41.</summary>
    [CadDouble(41)]
    public double Radius { get; set; }

    /// <summary>Gets or sets the radius of the circle around the top; 0 for a tip. Group code 42.</summary>
    [CadDouble(42)]
    public double TopRadius { get; set; }
}
