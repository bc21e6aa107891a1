using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A group of entities.</summary>
[CadObject("GROUP", Subclass = "AcDbGroup")]
[CadBits("T Description", "BS Unnamed", "BS Selectable", "H[BL] EntityHandles")]
public partial class CadGroup : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadGroup()
    {
    }

    /// <summary>Gets or sets the description. Group code 300.</summary>
    [CadString(300)]
    public string Description { get; set; } = "";

    /// <summary>Gets or sets whether the group has no name: 0 no, 1 yes. Group code 70.</summary>
    [CadShort(70)]
    public short Unnamed { get; set; }

    /// <summary>Gets or sets whether picking one entity picks the group: 0 no, 1 yes. Group code 71.</summary>
    [CadShort(71)]
    public short Selectable { get; set; } = 1;

    /// <summary>Gets the handles of the entities, in hexadecimal. The list is live. Group code 340.</summary>
    [CadList(340)]
    public List<string> EntityHandles { get; } = [];
}
