using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The value of an attribute of the block that a multileader shows.</summary>
[CadBits("H DefinitionHandle", "T Value", "BS Index", "BD Width")]
internal sealed partial class MLeaderAttribute
{
    [CadHandle(330)]
    internal string DefinitionHandle { get; set; } = "";

    [CadShort(177)]
    internal short Index { get; set; }

    [CadDouble(44)]
    internal double Width { get; set; }

    [CadString(302)]
    internal string Value { get; set; } = "";
}
