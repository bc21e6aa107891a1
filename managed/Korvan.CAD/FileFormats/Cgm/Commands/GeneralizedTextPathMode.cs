using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Whether texts follow the last compound text path.</summary>
public sealed class GeneralizedTextPathMode : Command
{
    private static readonly string[] Words = ["OFF", "NONTANGENTIAL", "AXISTANGENTIAL"];

    /// <summary>Creates the element with its default.</summary>
    public GeneralizedTextPathMode()
        : base(ClassCode.ControlElement, (int)ControlElement.GeneralizedTextPathMode)
    {
    }

    /// <summary>The ways to follow a path.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum TextPathMode
    {
        /// <summary>They do not.</summary>
        Off = 0,

        /// <summary>Characters stand on the path and keep their direction.</summary>
        NonTangential = 1,

        /// <summary>Characters turn with the path.</summary>
        AxisTangential = 2,
    }

    /// <summary>Gets or sets how they follow it.</summary>
    public TextPathMode Mode { get; set; }

    internal override void Exchange(ParameterExchange x) => Mode = x.Enumeration(Mode, Words);
}
