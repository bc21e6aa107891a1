using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>How a solid was made.</summary>
[CadSequence]
internal sealed partial class SolidHistory
{
    /// <summary>Gets or sets the handle of the history. Group code 350.</summary>
    [CadHandle(350)]
    internal string Handle { get; set; } = "0";
}
