using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A section plane, which may have bends.</summary>
[CadSequence]
[CadObject("SECTIONOBJECT", Subclass = "AcDbSection")]
[CadBits(
    "BL State", "BL SectionFlags", "T Name", "3BD VerticalDirection", "BD TopHeight", "BD BottomHeight",
    "BS IndicatorTransparency", "CMC IndicatorColorId _ IndicatorColorName", "3BD[BL] Vertices",
    "3BD[BL] BackLineVertices", "H GeometrySettingsHandle")]
public partial class CadSection : CadEntityBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadSection()
    {
    }

    /// <summary>Gets or sets the kind: 1 a plane, 2 a boundary, 4 a volume. Group code 90.</summary>
    [CadInt(90)]
    public int State { get; set; } = 1;

    /// <summary>Gets or sets flags: 1 live, 2 a slice. Group code 91.</summary>
    [CadInt(91)]
    public int SectionFlags { get; set; }

    /// <summary>Gets or sets the name. Group code 1.</summary>
    [CadString(1)]
    public string Name { get; set; } = "";

    /// <summary>Gets or sets the direction upwards. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint VerticalDirection { get; set; } = new(0, 0, 1);

    /// <summary>Gets or sets the height above the line, in drawing units. Group code 40.</summary>
    [CadDouble(40)]
    public double TopHeight { get; set; }

    /// <summary>Gets or sets the height below the line, in drawing units. Group code 41.</summary>
    [CadDouble(41)]
    public double BottomHeight { get; set; }

    /// <summary>Gets or sets the transparency of the plane in percent. Group code 70.</summary>
    [CadShort(70)]
    public short IndicatorTransparency { get; set; } = 70;

    /// <summary>Gets or sets the index of the colour of the plane. Group code 63.</summary>
    [CadColor(63, Optional = true)]
    public short IndicatorColorId { get; set; } = 7;

    /// <summary>Gets or sets the index of the colour of the plane under the group code of entities. Group code
    /// 62.</summary>
    [CadColor(62, Optional = true)]
    public short IndicatorIndex { get; set; } = 7;

    /// <summary>Gets or sets the name of the colour of the plane in its book; empty for none. Group code 411.</summary>
    [CadString(411, Optional = true)]
    public string IndicatorColorName { get; set; } = "";

    /// <summary>Gets the vertices of the line, in world coordinates. The list is live. Group codes 11, 21,
    /// 31.</summary>
    [CadList(11, Count = 92)]
    public IList<Cad3DPoint> Vertices { get; } = new CheckedList<Cad3DPoint>("vertices");

    /// <summary>Gets the vertices of the line at the back, in world coordinates. The list is live. Group codes 12, 22,
    /// 32.</summary>
    [CadList(12, Count = 93)]
    public IList<Cad3DPoint> BackLineVertices { get; } = new CheckedList<Cad3DPoint>("back_line_vertices");

    /// <summary>Gets or sets the handle of the settings in hexadecimal. Group code 360.</summary>
    [CadHandle(360)]
    public string GeometrySettingsHandle { get; set; } = "0";
}
