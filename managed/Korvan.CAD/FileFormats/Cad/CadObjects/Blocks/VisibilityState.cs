using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>A visibility state of a dynamic block.</summary>
[CadSequence]
[CadBits("T Name", "H[BL] EntityHandles", "H[BL] ElementHandles")]
internal sealed partial class VisibilityState
{
    /// <summary>Gets or sets the name. Group code 303.</summary>
    [CadString(303)]
    public string Name { get; set; } = "";

    /// <summary>Gets the handles of the entities that the state shows. The list is live. Group code 332.</summary>
    [CadList(332, Count = 94)]
    public List<string> EntityHandles { get; } = [];

    /// <summary>Gets the handles of the parameters and actions that the state has. The list is live. Group code
    /// 333.</summary>
    [CadList(333, Count = 95)]
    public List<string> ElementHandles { get; } = [];
}
