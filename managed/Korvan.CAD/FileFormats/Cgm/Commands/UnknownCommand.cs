using System;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>An element that the standard does not define. Its parameters are kept as they were read; only the encoding
/// that they were read from can hold them.</summary>
public sealed class UnknownCommand : Command
{
    /// <summary>Creates the command of an element.</summary>
    /// <param name="arguments">The element.</param>
    public UnknownCommand(CommandConstructorArguments arguments)
        : base(arguments ?? throw new ArgumentNullException(null, "arguments must not be None."))
    {
    }

    /// <summary>Gets or sets the parameters in binary encoding.</summary>
    public byte[] Parameters { get; set; } = [];

    /// <summary>Gets or sets the element in clear text without its terminator; empty when it was read from a binary
    /// file.</summary>
    public string Source { get; set; } = "";
}
