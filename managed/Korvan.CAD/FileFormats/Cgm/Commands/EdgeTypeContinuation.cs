using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>How dashes go on at the points of an edge: 1 as the program that draws likes it, 2 they go on, 3 they begin
/// anew, 4 they go on and are fitted to the ends.</summary>
public sealed class EdgeTypeContinuation : GenericIndexCommand
{
    /// <summary>Creates the element with its default.</summary>
    public EdgeTypeContinuation()
        : base(ClassCode.AttributeElement, (int)AttributeElement.EdgeTypeContinuation)
    {
    }
}
