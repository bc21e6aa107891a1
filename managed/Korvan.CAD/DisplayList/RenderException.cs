using System;

namespace Korvan.CAD.DisplayList;

/// <summary>A drawing that cannot be rendered, or a device that failed; the exporter turns it into the public
/// one.</summary>
internal sealed class RenderException : Exception
{
    internal RenderException(string message)
        : base(message)
    {
    }

    internal RenderException(string message, Exception inner)
        : base(message, inner)
    {
    }
}
