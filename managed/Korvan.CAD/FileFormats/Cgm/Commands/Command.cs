using System;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>One element of a metafile with its parameters. ISO/IEC 8632-1 defines the meaning of each.</summary>
[PythonMostDerived]
public abstract class Command
{
    /// <summary>Creates the command of an element.</summary>
    /// <param name="arguments">The element.</param>
    private protected Command(CommandConstructorArguments arguments)
    {
        ElementClass = arguments.ElementClass;
        ElementId = arguments.ElementId;
    }

    private protected Command(ClassCode elementClass, int elementId)
    {
        ElementClass = elementClass;
        ElementId = elementId;
    }

    /// <summary>Gets the class of the element.</summary>
    public ClassCode ElementClass { get; }

    /// <summary>Gets the number of the element in its class.</summary>
    public int ElementId { get; }

    /// <summary>Gets the keyword of the element in clear text; empty for an element that the standard does not
    /// define.</summary>
    public string Keyword => ElementTables.Keyword(ElementClass, ElementId);

    /// <summary>Reads the parameters.</summary>
    /// <param name="reader">The reader, at the first parameter of this element.</param>
    public void ReadFromBinary(IBinaryReader reader)
    {
        Verify.NotNull(reader);
        Exchange(ExchangeOf(reader, nameof(reader)));
    }

    /// <summary>Writes the parameters.</summary>
    /// <param name="writer">The writer, at the first parameter of this element.</param>
    public void WriteAsBinary(IBinaryWriter writer)
    {
        Verify.NotNull(writer);
        Exchange(ExchangeOf(writer, nameof(writer)));
    }

    /// <summary>Writes the keyword of the element, its parameters and the terminator.</summary>
    /// <param name="writer">The writer.</param>
    /// <exception cref="InvalidOperationException">The element has no keyword in clear text.</exception>
    public void WriteAsClearText(IClearTextWriter writer)
    {
        Verify.NotNull(writer);
        if (Keyword.Length == 0)
        {
            throw new InvalidOperationException(
                $"The element {(int)ElementClass}, {ElementId} has no keyword in clear text.");
        }

        writer.BeginElement(Keyword);
        Exchange(ExchangeOf(writer, nameof(writer)));
        writer.EndElement();
    }

    /// <inheritdoc/>
    public override string ToString() => $"{Keyword} ({(int)ElementClass}, {ElementId})";

    /// <summary>Reads or writes the parameters in their order.</summary>
    internal virtual void Exchange(ParameterExchange x)
    {
    }

    /// <summary>Notes how this command changes the coding of later ones.</summary>
    internal virtual void Apply(CodingState state)
    {
    }

    private static ParameterExchange ExchangeOf(object codec, string name) =>
        codec is IParameterCodec known
            ? known.Exchange
            : throw new ArgumentException($"{name} must be a reader or writer of this library.");
}
