using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Whether gaps between dashes and behind hatches let through what is below.</summary>
public sealed class Transparency : Command
{
    /// <summary>Creates the element with its default.</summary>
    public Transparency()
        : base(ClassCode.ControlElement, (int)ControlElement.Transparency)
    {
    }

    /// <summary>Gets or sets whether they do; if not, gaps have the auxiliary colour.</summary>
    public bool IsTransparent { get; set; } = true;

    internal override void Exchange(ParameterExchange x) => IsTransparent = x.Flag(IsTransparent);
}
