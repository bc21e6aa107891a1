using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The element that a command stands for.</summary>
public sealed class CommandConstructorArguments
{
    /// <summary>Creates the arguments for an element.</summary>
    /// <param name="elementClass">The class of the element.</param>
    /// <param name="elementId">The number of the element in its class, 0 to 127.</param>
    public CommandConstructorArguments(ClassCode elementClass, int elementId)
    {
        Verify.InRange((int)elementClass, 0, 15);
        Verify.InRange(elementId, 0, 127);
        ElementClass = elementClass;
        ElementId = elementId;
    }

    /// <summary>Gets the class of the element.</summary>
    public ClassCode ElementClass { get; }

    /// <summary>Gets the number of the element in its class.</summary>
    public int ElementId { get; }
}
