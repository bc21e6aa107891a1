using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>How the pieces of lines meet.</summary>
public sealed class LineJoin : JoinCommand
{
    /// <summary>Creates the element with its default.</summary>
    public LineJoin()
        : base(ClassCode.AttributeElement, (int)AttributeElement.LineJoin)
    {
    }
}
