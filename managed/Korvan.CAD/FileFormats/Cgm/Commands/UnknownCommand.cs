using System;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>An element that no standard names. Its parameters are kept as they were read; only the encoding that they
/// were read from can hold them.</summary>
public sealed class UnknownCommand : Command
{
    /// <summary>Creates the command of an element.</summary>
    /// <param name="arguments">The element.</param>
    public UnknownCommand(CommandConstructorArguments arguments)
        : base(arguments ?? throw new ArgumentNullException(null, "arguments must not be None."))
    {
    }

    /// <summary>Gets or sets the parameters as they stand in a binary file.</summary>
    public byte[] Parameters { get; set; } = [];

    /// <summary>Gets or sets the element as it stands in a clear text file, without its semicolon; empty when it comes
    /// from a binary one.</summary>
    public string Source { get; set; } = "";
}
