using System;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>One element of a metafile with its parameters. The meaning of each is told by ISO/IEC 8632-1.</summary>
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

    /// <summary>Gets the word that stands for the element in clear text; empty for an element that no standard
    /// names.</summary>
    public string Keyword => ElementTables.Keyword(ElementClass, ElementId);

    /// <summary>Reads the parameters.</summary>
    /// <param name="reader">What stands at the first parameter of this element.</param>
    public void ReadFromBinary(IBinaryReader reader)
    {
        Verify.NotNull(reader);
        Exchange(BinaryReading.Of(reader));
    }

    /// <summary>Writes the parameters.</summary>
    /// <param name="writer">What takes the parameters of this element.</param>
    public void WriteAsBinary(IBinaryWriter writer)
    {
        Verify.NotNull(writer);
        Exchange(BinaryWriting.Of(writer));
    }

    /// <summary>Writes the word of the element, its parameters and the semicolon.</summary>
    /// <param name="writer">What takes the words.</param>
    /// <exception cref="InvalidOperationException">Clear text has no word for the element.</exception>
    public void WriteAsClearText(IClearTextWriter writer)
    {
        Verify.NotNull(writer);
        if (Keyword.Length == 0)
        {
            throw new InvalidOperationException($"Clear text has no word for the element {(int)ElementClass}, {ElementId}.");
        }

        writer.BeginElement(Keyword);
        Exchange(ClearTextWriting.Of(writer));
        writer.EndElement();
    }

    /// <inheritdoc/>
    public override string ToString() => $"{Keyword} ({(int)ElementClass}, {ElementId})";

    /// <summary>Names the parameters in their order.</summary>
    internal virtual void Exchange(ParameterExchange x)
    {
    }

    /// <summary>Takes note of what this command says of how later ones are coded.</summary>
    internal virtual void Apply(CodingState state)
    {
    }
}
