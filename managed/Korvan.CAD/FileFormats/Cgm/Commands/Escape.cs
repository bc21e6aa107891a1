using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Something that no element of the format says; its number is registered, or private when negative.</summary>
public sealed class Escape : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public Escape()
        : base(ClassCode.EscapeElement, 1)
    {
    }

    /// <summary>Gets or sets what is said.</summary>
    public int Identifier { get; set; }

    /// <summary>Gets or sets the data.</summary>
    public byte[] Data { get; set; } = [];

    internal override void Exchange(ParameterExchange x)
    {
        Identifier = x.Integer(Identifier);
        Data = x.Data(Data);
    }
}
