using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>How the pieces of edges meet.</summary>
public sealed class EdgeJoin : JoinCommand
{
    /// <summary>Creates the element with its default.</summary>
    public EdgeJoin()
        : base(ClassCode.AttributeElement, (int)AttributeElement.EdgeJoin)
    {
    }
}
