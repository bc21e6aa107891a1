using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A light of a light list.</summary>
[CadSequence]
[CadBits("H LightHandle", "T Name")]
internal sealed partial class LightListEntry
{
    /// <summary>Gets or sets the handle of the light. Group code 5.</summary>
    [CadHandle(5)]
    public string LightHandle { get; set; } = "0";

    /// <summary>Gets or sets the name. Group code 1.</summary>
    [CadString(1)]
    public string Name { get; set; } = "";
}
