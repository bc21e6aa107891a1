using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Section;

/// <summary>The section planes of a drawing.</summary>
[CadSequence]
[CadAlias("SECTION_MANAGER")]
[CadObject("SECTIONMANAGER", Subclass = "AcDbSectionManager")]
[CadBits("B RequiresUpdate", "H[BS] SectionHandles")]
public partial class CadSectionManager : CadObjectBase, ICadObjectContainer
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadSectionManager()
    {
    }

    /// <summary>Gets or sets whether all sections have to be updated. Group code 70.</summary>
    [CadBool(70)]
    public bool RequiresUpdate { get; set; }

    /// <summary>Gets the handles of the section planes, in hexadecimal. The list is live. Group code 330.</summary>
    [CadList(330, Count = 90)]
    public List<string> SectionHandles { get; } = [];

    /// <inheritdoc/>
    public string[] GetObjectHandles() => [.. SectionHandles];
}
