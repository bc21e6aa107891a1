using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>How lines and their dashes end.</summary>
public sealed class LineCap : CapCommand
{
    /// <summary>Creates the element with its defaults.</summary>
    public LineCap()
        : base(ClassCode.AttributeElement, (int)AttributeElement.LineCap)
    {
    }
}
