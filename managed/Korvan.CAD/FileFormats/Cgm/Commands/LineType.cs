using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The dashes of lines.</summary>
public sealed class LineType : DashTypeCommand
{
    /// <summary>Creates the element with its default.</summary>
    public LineType()
        : base(ClassCode.AttributeElement, (int)AttributeElement.LineType)
    {
    }
}
