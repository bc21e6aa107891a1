namespace Korvan.CAD.ImageOptions;

/// <summary>Something that was not rendered faithfully, and the reason.</summary>
public class RenderResult
{
    internal RenderResult(RenderErrorCode renderCode, string message)
    {
        RenderCode = renderCode;
        Message = message;
    }

    /// <summary>Gets the reason.</summary>
    public RenderErrorCode RenderCode { get; }

    /// <summary>Gets what was concerned, and how often.</summary>
    public string Message { get; }

    /// <inheritdoc/>
    public override string ToString() => $"{RenderCode}: {Message}";
}
