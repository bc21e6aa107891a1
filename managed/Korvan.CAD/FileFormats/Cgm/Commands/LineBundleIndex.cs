using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Which bundle of attributes lines take.</summary>
public sealed class LineBundleIndex : GenericIndexCommand
{
    /// <summary>Creates the element with its default.</summary>
    public LineBundleIndex()
        : base(ClassCode.AttributeElement, (int)AttributeElement.LineBundleIndex)
    {
    }
}
