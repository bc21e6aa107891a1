using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Assoc;

/// <summary>An expression of a named value, and the dependency that it comes from.</summary>
[CadSequence]
[CadBits("Part Value", "H Dependency")]
internal sealed partial class AssocValueInput
{
    /// <summary>Gets the value.</summary>
    [CadPart]
    public AssocEvaluatedVariant Value { get; } = new();

    /// <summary>Gets or sets the handle of the dependency. Group code 330.</summary>
    [CadHandle(330)]
    public string Dependency { get; set; } = "0";
}
