using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Makes the line to the next piece of a closed figure an edge.</summary>
public sealed class ConnectingEdge : Command
{
    /// <summary>Creates the element, which has no parameters.</summary>
    public ConnectingEdge()
        : base(ClassCode.GraphicalPrimitiveElement, (int)GraphicalPrimitiveElement.ConnectingEdge)
    {
    }
}
