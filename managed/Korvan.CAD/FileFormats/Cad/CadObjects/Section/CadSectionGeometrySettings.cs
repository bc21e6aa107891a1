using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Section;

/// <summary>The appearance of one kind of lines of a section: of the boundary, its filling, the background or the
/// foreground.</summary>
[CadSequence]
[CadLabel(2, "SectionGeometrySettings")]
[CadEnd(3, "SectionGeometrySettingsEnd")]
[CadBits(
    "BL SectionType", "BL GeometryType", "BL Flags", "CMC IndexedColorId ColorValue", "T LayerName", "T LineTypeName",
    "BD LineTypeScale", "T PlotStyleName", "BL LineWeight", "BS FaceTransparency", "BS EdgeTransparency",
    "BS HatchPatternType", "T HatchPatternName", "BD HatchAngle", "BD HatchScale", "BD HatchSpacing")]
public partial class CadSectionGeometrySettings
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadSectionGeometrySettings()
    {
    }

    /// <summary>Gets or sets the type of the section: 1 live, 2 two-dimensional, 4 three-dimensional. Group code
    /// 90.</summary>
    [CadInt(90)]
    public int SectionType { get; set; } = 1;

    /// <summary>Gets or sets the kind: 1 the boundary, 2 its filling, 4 the background, 8 the foreground, 16 tangent
    /// lines. Group code 91.</summary>
    [CadInt(91)]
    public int GeometryType { get; set; } = 1;

    /// <summary>Gets or sets flags: 1 shown, 2 hidden lines, 4 division lines. Group code 92.</summary>
    [CadInt(92)]
    public int Flags { get; set; }

    /// <summary>Gets or sets the index of the colour. Group code 63.</summary>
    [CadColor(63, Optional = true)]
    public short ColorId { get; set; } = 256;

    /// <summary>Gets or sets the index of the colour under the group code of entities. Group code 62.</summary>
    [CadColor(62, Optional = true)]
    public short IndexedColorId { get; set; } = 256;

    /// <summary>Gets or sets the colour as 0xRRGGBB; -1 for none. Group code 420.</summary>
    [CadInt(420, Optional = true)]
    public int ColorValue { get; set; } = -1;

    /// <summary>Gets or sets the name of the layer. Group code 8.</summary>
    [CadName(8, SymbolTable.Layer)]
    public string LayerName { get; set; } = "0";

    /// <summary>Gets or sets the name of the line type. Group code 6.</summary>
    [CadName(6, SymbolTable.LineType)]
    public string LineTypeName { get; set; } = "BYLAYER";

    /// <summary>Gets or sets the factor on the lengths of the line type. Group code 40.</summary>
    [CadDouble(40)]
    public double LineTypeScale { get; set; } = 1;

    /// <summary>Gets or sets the name of the plot style. Group code 1.</summary>
    [CadString(1)]
    public string PlotStyleName { get; set; } = "";

    /// <summary>Gets or sets the line weight in hundredths of a millimetre; -1 by layer, -2 by block, -3 the default.
    /// Group code 370.</summary>
    [CadShort(370)]
    public short LineWeight { get; set; } = -1;

    /// <summary>Gets or sets the transparency of faces in percent, 0 to 100. Group code 70.</summary>
    [CadShort(70)]
    public short FaceTransparency { get; set; }

    /// <summary>Gets or sets the transparency of edges in percent, 0 to 100. Group code 71.</summary>
    [CadShort(71)]
    public short EdgeTransparency { get; set; }

    /// <summary>Gets or sets the type of the hatch pattern: 0 user-defined, 1 predefined, 2 custom. Group code
    /// 72.</summary>
    [CadShort(72)]
    public short HatchPatternType { get; set; }

    /// <summary>Gets or sets the name of the hatch pattern. Group code 2.</summary>
    [CadString(2)]
    public string HatchPatternName { get; set; } = "SOLID";

    /// <summary>Gets or sets the angle of the hatch pattern, in radians. Group code 41.</summary>
    [CadDouble(41)]
    public double HatchAngle { get; set; }

    /// <summary>Gets or sets the scale of the hatch pattern. Group code 42.</summary>
    [CadDouble(42)]
    public double HatchScale { get; set; } = 1;

    /// <summary>Gets or sets the distance of the lines of the hatch pattern, in drawing units. Group code 43.</summary>
    [CadDouble(43)]
    public double HatchSpacing { get; set; } = 1;
}
