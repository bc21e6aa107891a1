using System;
using Korvan.CAD.TimeProvision;

namespace Korvan.CAD.WatermarkGuard;

/// <summary>The invisible watermark of a drawing: a text encrypted with a password. Several copies in the drawing
/// survive saving, loading and most editing.</summary>
/// <remarks>The text is encrypted with AES-GCM (NIST SP 800-38D) with a key that PBKDF2 (RFC 8018) derives from the
/// password. The watermark identifies the owner of the drawing to those who know the password; it can be removed by
/// editing the file.</remarks>
public interface IWatermarkGuardService
{
    /// <summary>Gets what is known without the password: whether there is a watermark, and whether copies of it are
    /// missing.</summary>
    WatermarkingStatus Status { get; }

    /// <summary>Embeds a watermark, and replaces an existing one.</summary>
    /// <param name="text">The text, up to 1000 bytes of UTF-8.</param>
    /// <param name="password">The password.</param>
    /// <param name="time">The clock of the time stamp in the watermark.</param>
    void Embed(string text, string password, TimeProvisionType time);

    /// <summary>Embeds a watermark without a time stamp, and replaces an existing one.</summary>
    /// <param name="text">The text, up to 1000 bytes of UTF-8.</param>
    /// <param name="password">The password.</param>
    void Embed(string text, string password);

    /// <summary>Checks the watermark against a text and a password.</summary>
    /// <param name="text">The text.</param>
    /// <param name="password">The password.</param>
    WatermarkingStatus Validate(string text, string password);

    /// <summary>Returns the text of the watermark; <see langword="null"/> if there is none, or the password is
    /// wrong.</summary>
    /// <param name="password">The password.</param>
    string? GetText(string password);

    /// <summary>Returns the time stamp of the watermark; <see langword="null"/> if there is none, or the password is
    /// wrong.</summary>
    /// <param name="password">The password.</param>
    DateTime? GetTime(string password);

    /// <summary>Removes the watermark.</summary>
    /// <returns>Whether there was a previous one.</returns>
    bool Remove();
}
