namespace Korvan.CAD.ImageOptions;

/// <summary>One thing that was not drawn as it is, and why.</summary>
public class RenderResult
{
    internal RenderResult(RenderErrorCode renderCode, string message)
    {
        RenderCode = renderCode;
        Message = message;
    }

    /// <summary>Gets the reason.</summary>
    public RenderErrorCode RenderCode { get; }

    /// <summary>Gets what it was, and how often.</summary>
    public string Message { get; }

    /// <inheritdoc/>
    public override string ToString() => $"{RenderCode}: {Message}";
}
