using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The name under which a person can pick what follows in a segment.</summary>
public sealed class PickIdentifier : Command
{
    /// <summary>Creates the element with its default.</summary>
    public PickIdentifier()
        : base(ClassCode.AttributeElement, (int)AttributeElement.PickIdentifier)
    {
    }

    /// <summary>Gets or sets the name, a number.</summary>
    public int Identifier { get; set; }

    internal override void Exchange(ParameterExchange x) => Identifier = x.Name(Identifier);
}
