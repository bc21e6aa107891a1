using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Section;

/// <summary>How sections are generated from a section plane.</summary>
[CadSequence]
[CadAlias("SECTION_SETTINGS")]
[CadObject("SECTIONSETTINGS", Subclass = "AcDbSectionSettings")]
[CadBits("BL SectionType", "Part[BL] TypeSettings")]
public partial class CadSectionSettings : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadSectionSettings()
    {
    }

    /// <summary>Gets or sets the type of the section: 1 live, 2 two-dimensional, 4 three-dimensional. Group code
    /// 90.</summary>
    [CadInt(90)]
    public int SectionType { get; set; } = 1;

    /// <summary>Gets the settings of each type. The list is live. Group code 91.</summary>
    [CadRepeated(1, Count = 91)]
    public IList<CadSectionTypeSettings> TypeSettings { get; } =
        new CheckedList<CadSectionTypeSettings>("type_settings");
}
