using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Section;

/// <summary>How sections of one type are generated.</summary>
[CadSequence]
[CadLabel(1, "SectionTypeSettings")]
[CadEnd(3, "SectionTypeSettingsEnd")]
[CadBits(
    "BL SectionType", "BL GenerationOptions", "H[BL] SourceHandles", "H DestinationBlockHandle",
    "T DestinationFileName", "Part[BL] GeometrySettings")]
public partial class CadSectionTypeSettings
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadSectionTypeSettings()
    {
    }

    /// <summary>Gets or sets the type of the section: 1 live, 2 two-dimensional, 4 three-dimensional. Group code
    /// 90.</summary>
    [CadInt(90)]
    public int SectionType { get; set; } = 1;

    /// <summary>Gets or sets what is cut and where it goes: 1 all objects, 2 selected objects, 16 a new block, 32 an
    /// existing block, 64 a file. Group code 91.</summary>
    [CadInt(91)]
    public int GenerationOptions { get; set; }

    /// <summary>Gets the handles of the objects that are cut, in hexadecimal. The list is live. Group code
    /// 330.</summary>
    [CadList(330, Count = 92)]
    public List<string> SourceHandles { get; } = [];

    /// <summary>Gets or sets the handle of the block that the section goes to, in hexadecimal. Group code
    /// 331.</summary>
    [CadHandle(331)]
    public string DestinationBlockHandle { get; set; } = "0";

    /// <summary>Gets or sets the path of the file that the section goes to. Group code 1.</summary>
    [CadString(1)]
    public string DestinationFileName { get; set; } = "";

    /// <summary>Gets the appearance of each kind of lines. The list is live. Group code 93.</summary>
    [CadRepeated(2, Count = 93)]
    public IList<CadSectionGeometrySettings> GeometrySettings { get; } =
        new CheckedList<CadSectionGeometrySettings>("geometry_settings");
}
