using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A sphere in the history of a solid; its centre is the origin of the step.</summary>
[CadSequence]
[CadMarkers(Leading = "AcDbShPrimitive")]
[CadObject("ACSH_SPHERE_CLASS", Subclass = "AcDbShSphere")]
[CadBits("base", "BL PrimitiveMajorVersion", "BL PrimitiveMinorVersion", "BD Radius")]
public partial class CadAcshSphereClass : CadAcshHistoryNode
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadAcshSphereClass()
    {
    }

    /// <summary>Gets or sets the major version of the program that wrote the solid. Group code 90.</summary>
    [CadInt(90)]
    public int PrimitiveMajorVersion { get; set; } = 33;

    /// <summary>Gets or sets the minor version of the program that wrote the solid. Group code 91.</summary>
    [CadInt(91)]
    public int PrimitiveMinorVersion { get; set; } = 29;

    /// <summary>Gets or sets the radius. Group code 40.</summary>
    [CadDouble(40)]
    public double Radius { get; set; }
}
