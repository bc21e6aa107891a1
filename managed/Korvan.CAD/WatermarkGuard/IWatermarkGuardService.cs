using System;
using Korvan.CAD.TimeProvision;

namespace Korvan.CAD.WatermarkGuard;

/// <summary>Hidden marks of a drawing: a text that only a password opens, kept in several places of the drawing, so that
/// it survives saving, loading and most editing.</summary>
/// <remarks>The text is encrypted with AES-GCM (NIST SP 800-38D) under a key that PBKDF2 (RFC 8018) makes of the
/// password. It tells whose drawing it is to who knows the password; who edits the file can take it out.</remarks>
public interface IWatermarkGuardService
{
    /// <summary>Gets what is seen without the password: whether there is a mark, and whether copies of it are
    /// missing.</summary>
    WatermarkingStatus Status { get; }

    /// <summary>Puts a mark into the drawing, in place of the one that is there.</summary>
    /// <param name="text">The text, up to 1000 bytes of UTF-8.</param>
    /// <param name="password">The password.</param>
    /// <param name="time">Which clock states in the mark when this was.</param>
    void Embed(string text, string password, TimeProvisionType time);

    /// <summary>Puts a mark without a time into the drawing, in place of the one that is there.</summary>
    /// <param name="text">The text, up to 1000 bytes of UTF-8.</param>
    /// <param name="password">The password.</param>
    void Embed(string text, string password);

    /// <summary>Tells whether the drawing has a mark of a text under a password.</summary>
    /// <param name="text">The text.</param>
    /// <param name="password">The password.</param>
    WatermarkingStatus Validate(string text, string password);

    /// <summary>Gives the text of the mark; nothing when there is none, or when the password is another.</summary>
    /// <param name="password">The password.</param>
    string? GetText(string password);

    /// <summary>Gives when the mark was put in; nothing when there is none, when it states no time, or when the password
    /// is another.</summary>
    /// <param name="password">The password.</param>
    DateTime? GetTime(string password);

    /// <summary>Takes the mark out.</summary>
    /// <returns>Whether there was one.</returns>
    bool Remove();
}
