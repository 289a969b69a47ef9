<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name></name>
    <message id="0201">
        <source>Check for product updates</source>
        <extracomment>Unused prompt caption of the first-use update window.</extracomment>
        <translation>Nach Produkt-Updates suchen</translation>
    </message>
    <message id="0204">
        <source>Check for Updates</source>
        <extracomment>Button: check for updates (first-use prompt).</extracomment>
        <translation>Nach Updates suchen</translation>
    </message>
    <message id="0205">
        <source>Do Not Check</source>
        <extracomment>Button: do not check (first-use prompt).</extracomment>
        <translation>Nicht suchen</translation>
    </message>
    <message id="0211">
        <source>&amp;Send Error</source>
        <extracomment>Button of the error window; shares the window with Continue.</extracomment>
        <translation>Fehler &amp;senden</translation>
    </message>
    <message id="0212">
        <source>&amp;Continue</source>
        <extracomment>Button of the error window; shares the window with Send Error.</extracomment>
        <translation>&amp;Weiter</translation>
    </message>
    <message id="0213">
        <source>An error has occured in this application.  The application has returned the following information about this error:</source>
        <extracomment>Introduces the description of an error.</extracomment>
        <translation>In diesem Programm ist ein Fehler aufgetreten. Das Programm meldet dazu folgende Informationen:</translation>
    </message>
    <message id="0227">
        <source>OK</source>
        <extracomment>Button of the About window.</extracomment>
        <translation>OK</translation>
    </message>
    <message id="0228">
        <source>&amp;System Info...</source>
        <extracomment>Button of the About window.</extracomment>
        <translation>&amp;Systeminfo …</translation>
    </message>
    <message id="0231">
        <source>Tessaloom - Calculate Your eBay Auction Fees</source>
        <extracomment>Caption of frmeBayFees (QMainWindow, main window)</extracomment>
        <translation>Tessaloom – Ihre eBay-Auktionsgebühren berechnen</translation>
    </message>
    <message id="0232">
        <source>print</source>
        <extracomment>Caption of cmdPrintNotepad (button, main window)</extracomment>
        <translation>Drucken</translation>
    </message>
    <message id="0233">
        <source>Print the contents of the notepad.</source>
        <extracomment>Tooltip of cmdPrintNotepad (button, main window)</extracomment>
        <translation>Den Inhalt der Notizen drucken.</translation>
    </message>
    <message id="0234">
        <source>copy</source>
        <extracomment>Caption of cmdCopyNotepad (button, main window)</extracomment>
        <translation>Kopieren</translation>
    </message>
    <message id="0235">
        <source>Copy the contents of the notepad.</source>
        <extracomment>Tooltip of cmdCopyNotepad (button, main window)</extracomment>
        <translation>Den Inhalt der Notizen kopieren.</translation>
    </message>
    <message id="0236">
        <source>clear</source>
        <extracomment>Caption of cmdClearNotepad (button, main window)</extracomment>
        <translation>Leeren</translation>
    </message>
    <message id="0237">
        <source>Clear the notepad of all text.</source>
        <extracomment>Tooltip of cmdClearNotepad (button, main window)</extracomment>
        <translation>Den gesamten Text der Notizen löschen.</translation>
    </message>
    <message id="0238">
        <source>view notepad</source>
        <extracomment>Caption of cmdNotepad (button, main window); Caption of cmdNotepad (button) at design time.</extracomment>
        <translation>Notizen zeigen</translation>
    </message>
    <message id="0239">
        <source>Click to expand or collapse this window to view or hide the notepad.</source>
        <extracomment>Tooltip of cmdNotepad (button, main window)</extracomment>
        <translation>Klicken Sie hier, um das Fenster zu vergrößern oder zu verkleinern und so die Notizen zu zeigen oder zu verbergen.</translation>
    </message>
    <message id="0240">
        <source>&amp;Single Item</source>
        <extracomment>Caption of a tab page</extracomment>
        <translation>&amp;Einzelartikel</translation>
    </message>
    <message id="0241">
        <source>&amp;Mutiple Items</source>
        <extracomment>Caption of a tab page</extracomment>
        <translation>&amp;Mehrere Artikel</translation>
    </message>
    <message id="0242">
        <source>&amp;Payment Services</source>
        <extracomment>Caption of a tab page</extracomment>
        <translation>&amp;Zahlungsdienste</translation>
    </message>
    <message id="0243">
        <source>&amp;Shipping </source>
        <extracomment>Caption of a tab page</extracomment>
        <translation>&amp;Versand </translation>
    </message>
    <message id="0244">
        <source>Fees charged on a per-item-sold basis.</source>
        <extracomment>Tooltip of txtDutchCostPerItem (text box, Multiple Items tab)</extracomment>
        <translation>Gebühren, die auf jeden verkauften Artikel entfallen.</translation>
    </message>
    <message id="0245">
        <source>Add to Notepad</source>
        <extracomment>Caption of cmdAddPaymentsToNotes (button, Payment Services tab)</extracomment>
        <translation>Als Notiz ablegen</translation>
    </message>
    <message id="0246">
        <source>Add the entries on this tab to the notepad below.</source>
        <extracomment>Tooltip of cmdAddPaymentsToNotes (button, Payment Services tab)</extracomment>
        <translation>Die Eingaben auf dieser Registerkarte unten in die Notizen übernehmen.</translation>
    </message>
    <message id="0247">
        <source>Add to Notepad</source>
        <extracomment>Caption of cmdAddDutchToNotes (button, Multiple Items tab)</extracomment>
        <translation>Als Notiz ablegen</translation>
    </message>
    <message id="0248">
        <source>Add the figures from this calculation to the notepad below.</source>
        <extracomment>Tooltip of cmdAddDutchToNotes (button, Multiple Items tab)</extracomment>
        <translation>Die Zahlen dieser Berechnung unten in die Notizen übernehmen.</translation>
    </message>
    <message id="0249">
        <source>Add to Notepad</source>
        <extracomment>Caption of cmdAddRegularToNotes (button, Single Item tab)</extracomment>
        <translation>Als Notiz ablegen</translation>
    </message>
    <message id="0250">
        <source>Add the information from this calculation to the notepad below.</source>
        <extracomment>Tooltip of cmdAddRegularToNotes (button, Single Item tab)</extracomment>
        <translation>Die Angaben dieser Berechnung unten in die Notizen übernehmen.</translation>
    </message>
    <message id="0251">
        <source>Item Did Not Sell</source>
        <extracomment>Caption of chkDidNotSell (check box, Single Item tab)</extracomment>
        <translation>Artikel nicht verkauft</translation>
    </message>
    <message id="0252">
        <source>Check this box if your item did not sell, i.e it did not get any bids or did not meet the posted reserve.</source>
        <extracomment>Tooltip of chkDidNotSell (check box, Single Item tab)</extracomment>
        <translation>Kreuzen Sie dieses Kästchen an, wenn Ihr Artikel nicht verkauft wurde, d. h. wenn er keine Gebote erhielt oder der festgelegte Mindestpreis nicht erreicht wurde.</translation>
    </message>
    <message id="0253">
        <source>This box shows the commission you pay to eBay, based on the final sales price (for most items).</source>
        <extracomment>Tooltip of txtFVF (text box, Single Item tab)</extracomment>
        <translation>Dieses Feld zeigt die Provision, die Sie an eBay zahlen. Sie richtet sich (bei den meisten Artikeln) nach dem endgültigen Verkaufspreis.</translation>
    </message>
    <message id="0254">
        <source>Clear All</source>
        <extracomment>Caption of cmdClearPaymentFees (button, Payment Services tab)</extracomment>
        <translation>Alles löschen</translation>
    </message>
    <message id="0255">
        <source>Click here to clear all entries.</source>
        <extracomment>Tooltip of cmdClearPaymentFees (button, Payment Services tab)</extracomment>
        <translation>Klicken Sie hier, um alle Eingaben zu löschen.</translation>
    </message>
    <message id="0256">
        <source>Click here to calculate your total fees.</source>
        <extracomment>Tooltip of cmdCalculatePaymentFees (button, Payment Services tab)</extracomment>
        <translation>Klicken Sie hier, um Ihre gesamten Gebühren zu berechnen.</translation>
    </message>
    <message id="0257">
        <source>Payment Amount</source>
        <extracomment>Caption of frmPaymentAmount (frame, Payment Services tab)</extracomment>
        <translation>Zahlungsbetrag</translation>
    </message>
    <message id="0258">
        <source>Enter the exchange rate for this currency.  Used to calculate certain payment service fees.</source>
        <extracomment>Tooltip of txtConversion (text box, Payment Services tab)</extracomment>
        <translation>Geben Sie den Wechselkurs für diese Währung ein. Er wird zur Berechnung der Gebühren bestimmter Zahlungsdienste verwendet.</translation>
    </message>
    <message id="0259">
        <source>Enter the amount you are receiving.</source>
        <extracomment>Tooltip of txtPaymentAmount (text box, Payment Services tab)</extracomment>
        <translation>Geben Sie den Betrag ein, den Sie erhalten.</translation>
    </message>
    <message id="0260">
        <source>Check Rates</source>
        <extracomment>Caption of lblCheckRates (label, Payment Services tab)</extracomment>
        <translation>Kurse abrufen</translation>
    </message>
    <message id="0261">
        <source>Calculate</source>
        <extracomment>Caption of cmdCalculatePaymentFees (button, Payment Services tab)</extracomment>
        <translation>Berechnen</translation>
    </message>
    <message id="0262">
        <source>Click to open a web browser to a currency converter page.</source>
        <extracomment>Tooltip of lblCheckRates (label, Payment Services tab)</extracomment>
        <translation>Klicken Sie hier, um die Seite eines Währungsrechners im Webbrowser zu öffnen.</translation>
    </message>
    <message id="0263">
        <source>One US$ =</source>
        <extracomment>Caption of lblOneDollarEquals (label, Payment Services tab)</extracomment>
        <translation>1 US$ =</translation>
    </message>
    <message id="0264">
        <source>US$</source>
        <extracomment>Caption of lblCurrency14 (label, Payment Services tab)</extracomment>
        <translation>US$</translation>
    </message>
    <message id="0265">
        <source>US$</source>
        <extracomment>Caption of lblCurrency11 (label, Payment Services tab)</extracomment>
        <translation>US$</translation>
    </message>
    <message id="0266">
        <source>Payment Amount:</source>
        <extracomment>Caption of lblPaymentAmount (label, Payment Services tab)</extracomment>
        <translation>Zahlungsbetrag:</translation>
    </message>
    <message id="0267">
        <source>PayPal Premier or Business Account</source>
        <extracomment>Caption of frmPayPal (frame, Payment Services tab)</extracomment>
        <translation>PayPal: Premier- oder Geschäftskonto</translation>
    </message>
    <message id="0268">
        <source>Note:  Standard PayPal accounts are free.  These fees only apply to PayPal Premium accounts.</source>
        <extracomment>Tooltip of frmPayPal (frame, Payment Services tab)</extracomment>
        <translation>Hinweis: Einfache PayPal-Konten sind kostenlos. Diese Gebühren fallen nur bei Premier- und Geschäftskonten von PayPal an.</translation>
    </message>
    <message id="0269">
        <source>Buyer outside USA</source>
        <extracomment>Caption of chkInternationalPayPal (check box, Payment Services tab)</extracomment>
        <translation>Käufer nicht aus den USA</translation>
    </message>
    <message id="0270">
        <source>Was the buyer International?</source>
        <extracomment>Tooltip of chkInternationalPayPal (check box, Payment Services tab)</extracomment>
        <translation>Kam der Käufer aus dem Ausland?</translation>
    </message>
    <message id="0271">
        <source>Account Type</source>
        <extracomment>Caption of fraAccountType (frame, Payment Services tab)</extracomment>
        <translation>Kontoart</translation>
    </message>
    <message id="0272">
        <source>Merchant Rate</source>
        <extracomment>Caption of optPayPalMerchant (option button, Payment Services tab)</extracomment>
        <translation>Händlertarif</translation>
    </message>
    <message id="0273">
        <source>Merchant Account (available to high-volume sellers)</source>
        <extracomment>Tooltip of optPayPalMerchant (option button, Payment Services tab)</extracomment>
        <translation>Händlerkonto (für Verkäufer mit hohem Umsatz)</translation>
    </message>
    <message id="0274">
        <source>Standard Rate</source>
        <extracomment>Caption of optPayPalStandard (option button, Payment Services tab)</extracomment>
        <translation>Standardtarif</translation>
    </message>
    <message id="0275">
        <source>Standard Business or Premier Account (available to all sellers)</source>
        <extracomment>Tooltip of optPayPalStandard (option button, Payment Services tab)</extracomment>
        <translation>Geschäfts- oder Premierkonto zum Standardtarif (für alle Verkäufer)</translation>
    </message>
    <message id="0276">
        <source>Payment Type</source>
        <extracomment>Caption of fraPaymentType (frame, Payment Services tab)</extracomment>
        <translation>Zahlungsart</translation>
    </message>
    <message id="0277">
        <source>All Other Payments</source>
        <extracomment>Caption of optPayPalCreditCard (option button, Payment Services tab)</extracomment>
        <translation>Alle anderen Zahlungen</translation>
    </message>
    <message id="0278">
        <source>Choose this option if the buyer is paying by credit card.</source>
        <extracomment>Tooltip of optPayPalCreditCard (option button, Payment Services tab)</extracomment>
        <translation>Wählen Sie diese Option, wenn der Käufer per Kreditkarte zahlt.</translation>
    </message>
    <message id="0279">
        <source>eCheck Payment</source>
        <extracomment>Caption of optPayPalNonCreditCard (option button, Payment Services tab)</extracomment>
        <translation>eCheck-Zahlung</translation>
    </message>
    <message id="0280">
        <source>Choose this option if the buyer is paying out of an existing account balance or by electronic check.</source>
        <extracomment>Tooltip of optPayPalNonCreditCard (option button, Payment Services tab)</extracomment>
        <translation>Wählen Sie diese Option, wenn der Käufer aus einem vorhandenen Kontoguthaben oder per elektronischem Scheck zahlt.</translation>
    </message>
    <message id="0281">
        <source>Your total PayPal fee for this transaction.</source>
        <extracomment>Tooltip of txtPayPalFee (text box, Payment Services tab)</extracomment>
        <translation>Ihre gesamte PayPal-Gebühr für diese Transaktion.</translation>
    </message>
    <message id="0282">
        <source>US$</source>
        <extracomment>Caption of lblCurrency12 (label, Payment Services tab)</extracomment>
        <translation>US$</translation>
    </message>
    <message id="0283">
        <source>PayPal Fee:</source>
        <extracomment>Caption of lblPayPalFees (label, Payment Services tab)</extracomment>
        <translation>PayPal-Gebühr:</translation>
    </message>
    <message id="0284">
        <source>Total sales for this Dutch auction.</source>
        <extracomment>Tooltip of txtTotalDutchAuctionSales (text box, Multiple Items tab)</extracomment>
        <translation>Gesamtumsatz dieser Powerauktion.</translation>
    </message>
    <message id="0285">
        <source>Clear All</source>
        <extracomment>Caption of cmdDutchClearAll (button, Multiple Items tab)</extracomment>
        <translation>Alles löschen</translation>
    </message>
    <message id="0286">
        <source>Click here to clear all entries on this tab.</source>
        <extracomment>Tooltip of cmdDutchClearAll (button, Multiple Items tab)</extracomment>
        <translation>Klicken Sie hier, um alle Eingaben auf dieser Registerkarte zu löschen.</translation>
    </message>
    <message id="0287">
        <source>Calculate</source>
        <extracomment>Caption of cmdDutchCalculate (button, Multiple Items tab)</extracomment>
        <translation>Berechnen</translation>
    </message>
    <message id="0288">
        <source>Click here to calculate your total eBay fees for this Dutch auction.</source>
        <extracomment>Tooltip of cmdDutchCalculate (button, Multiple Items tab)</extracomment>
        <translation>Klicken Sie hier, um Ihre gesamten eBay-Gebühren für diese Powerauktion zu berechnen.</translation>
    </message>
    <message id="0289">
        <source>Your total eBay fees for this Dutch auction.</source>
        <extracomment>Tooltip of txtDutchFees (text box, Multiple Items tab)</extracomment>
        <translation>Ihre gesamten eBay-Gebühren für diese Powerauktion.</translation>
    </message>
    <message id="0290">
        <source>Enter the lowest sucessful bid placed on one of the items.</source>
        <extracomment>Tooltip of txtDutchFinalPrice (text box, Multiple Items tab)</extracomment>
        <translation>Geben Sie das niedrigste erfolgreiche Gebot ein, das auf einen der Artikel abgegeben wurde.</translation>
    </message>
    <message id="0291">
        <source>Enter the number of items that received bids.</source>
        <extracomment>Tooltip of txtDutchItemsSold (text box, Multiple Items tab)</extracomment>
        <translation>Geben Sie die Anzahl der Artikel ein, auf die geboten wurde.</translation>
    </message>
    <message id="0292">
        <source>Extra Listing Features</source>
        <extracomment>Caption of frmDutchExtras (frame, Multiple Items tab)</extracomment>
        <translation>Zusatzoptionen</translation>
    </message>
    <message id="0293">
        <source>Scheduled Listing</source>
        <extracomment>Caption of chkDutchScheduled (check box, Multiple Items tab)</extracomment>
        <translation>Startzeitplanung</translation>
    </message>
    <message id="0294">
        <source>For eBay Picture Services photos that can be enlarged to 800 x 600.  One price for all photos.</source>
        <extracomment>Tooltip of chkDutchScheduled (check box, Multiple Items tab)</extracomment>
        <translation>Für Bilder aus dem eBay-Bilderservice, die sich auf 800 × 600 vergrößern lassen. Ein Preis für alle Bilder.</translation>
    </message>
    <message id="0295">
        <source>Enter the lowest sucessful bid placed on one of the items.</source>
        <extracomment>Tooltip of txtExtraFeaturesDutch (text box, Multiple Items tab)</extracomment>
        <translation>Geben Sie das niedrigste erfolgreiche Gebot ein, das auf einen der Artikel abgegeben wurde.</translation>
    </message>
    <message id="0296">
        <source>Extra Pictures</source>
        <extracomment>Caption of chkExtraPicturesDutch (check box, Multiple Items tab)</extracomment>
        <translation>Weitere Bilder</translation>
    </message>
    <message id="0297">
        <source>For users of eBay Picture Services who use more than one photo.</source>
        <extracomment>Tooltip of chkExtraPicturesDutch (check box, Multiple Items tab)</extracomment>
        <translation>Für Nutzer des eBay-Bilderservice, die mehr als ein Bild verwenden.</translation>
    </message>
    <message id="0298">
        <source>Choose the number of extra photos used (beyond the free one).</source>
        <extracomment>Tooltip of cboExtraPicturesDutch (list, Multiple Items tab)</extracomment>
        <translation>Wählen Sie die Anzahl der weiteren Bilder (zusätzlich zum kostenlosen Bild).</translation>
    </message>
    <message id="0299">
        <source>Supersize Picture</source>
        <extracomment>Caption of chkSupersizeDutch (check box, Multiple Items tab)</extracomment>
        <translation>XXL-Foto</translation>
    </message>
    <message id="0300">
        <source>For eBay Picture Services photos that can be enlarged to 800 x 600.  One price for all photos.</source>
        <extracomment>Tooltip of chkSupersizeDutch (check box, Multiple Items tab)</extracomment>
        <translation>Für Bilder aus dem eBay-Bilderservice, die sich auf 800 × 600 vergrößern lassen. Ein Preis für alle Bilder.</translation>
    </message>
    <message id="0301">
        <source>Slideshow</source>
        <extracomment>Caption of chkSlideshowDutch (check box, Multiple Items tab)</extracomment>
        <translation>Diashow</translation>
    </message>
    <message id="0302">
        <source>eBay Picture Services slideshow.</source>
        <extracomment>Tooltip of chkSlideshowDutch (check box, Multiple Items tab)</extracomment>
        <translation>Diashow des eBay-Bilderservice.</translation>
    </message>
    <message id="0303">
        <source>Ten Day Auction</source>
        <extracomment>Caption of chkDutchTenDayAuction (check box, Multiple Items tab)</extracomment>
        <translation>10-Tage-Auktion</translation>
    </message>
    <message id="0304">
        <source>Check this box if you list your item for ten days.</source>
        <extracomment>Tooltip of chkDutchTenDayAuction (check box, Multiple Items tab)</extracomment>
        <translation>Kreuzen Sie dieses Kästchen an, wenn Sie Ihren Artikel zehn Tage lang anbieten.</translation>
    </message>
    <message id="0305">
        <source>Gift Services</source>
        <extracomment>Caption of chkDutchGreatGift (check box, Multiple Items tab)</extracomment>
        <translation>Geschenkservice</translation>
    </message>
    <message id="0306">
        <source>Check this box if you added a gift icon.</source>
        <extracomment>Tooltip of chkDutchGreatGift (check box, Multiple Items tab)</extracomment>
        <translation>Kreuzen Sie dieses Kästchen an, wenn Sie ein Geschenksymbol hinzugefügt haben.</translation>
    </message>
    <message id="0307">
        <source>Bold</source>
        <extracomment>Caption of chkDutchBold (check box, Multiple Items tab)</extracomment>
        <translation>Fettschrift</translation>
    </message>
    <message id="0308">
        <source>Check this box if your listing was in bold text.</source>
        <extracomment>Tooltip of chkListingDesigner (check box, Single Item tab); Tooltip of chkDutchListingDesigner (check box, Multiple Items tab); Tooltip of chkDutchBold (check box, Multiple Items tab)</extracomment>
        <translation>Kreuzen Sie dieses Kästchen an, wenn Ihr Angebot in Fettschrift erschien.</translation>
    </message>
    <message id="0309">
        <source>Highlight</source>
        <extracomment>Caption of chkDutchHighlight (check box, Multiple Items tab)</extracomment>
        <translation>Highlight</translation>
    </message>
    <message id="0310">
        <source>Check this box if your listing was highlighted.</source>
        <extracomment>Tooltip of chkDutchHighlight (check box, Multiple Items tab)</extracomment>
        <translation>Kreuzen Sie dieses Kästchen an, wenn Ihr Angebot farblich hervorgehoben war.</translation>
    </message>
    <message id="0311">
        <source>Gallery Featured</source>
        <extracomment>Caption of chkDutchGalleryFeatured (check box, Multiple Items tab)</extracomment>
        <translation>Top-Angebot Galerie</translation>
    </message>
    <message id="0312">
        <source>Featured in the Gallery section.</source>
        <extracomment>Tooltip of chkDutchGalleryFeatured (check box, Multiple Items tab)</extracomment>
        <translation>Erscheint als Top-Angebot in der Galerie.</translation>
    </message>
    <message id="0313">
        <source>Gallery</source>
        <extracomment>Caption of chkDutchGallery (check box, Multiple Items tab)</extracomment>
        <translation>Galerie</translation>
    </message>
    <message id="0314">
        <source>A picture of the item appears in the Gallery section.</source>
        <extracomment>Tooltip of chkDutchGallery (check box, Multiple Items tab)</extracomment>
        <translation>Ein Bild des Artikels erscheint in der Galerie.</translation>
    </message>
    <message id="0315">
        <source>Home Page Featured</source>
        <extracomment>Caption of chkDutchHomePageFeatured (check box, Multiple Items tab)</extracomment>
        <translation>Top-Angebot Startseite</translation>
    </message>
    <message id="0316">
        <source>Featured on the eBay home page.</source>
        <extracomment>Tooltip of chkDutchHomePageFeatured (check box, Multiple Items tab)</extracomment>
        <translation>Erscheint als Top-Angebot auf der eBay-Startseite.</translation>
    </message>
    <message id="0317">
        <source>Featured Plus</source>
        <extracomment>Caption of chkDutchFeaturedPlus (check box, Multiple Items tab)</extracomment>
        <translation>Top-Angebot</translation>
    </message>
    <message id="0318">
        <source>Also known as &apos;Featured Category&apos; - placed at the top of the listings in a category.</source>
        <extracomment>Tooltip of chkDutchFeaturedPlus (check box, Multiple Items tab)</extracomment>
        <translation>Auch „Top-Angebot in der Kategorie“ genannt – steht ganz oben in der Artikelliste einer Kategorie.</translation>
    </message>
    <message id="0319">
        <source>US$</source>
        <extracomment>Caption of lblCurrency16 (label, Multiple Items tab)</extracomment>
        <translation>US$</translation>
    </message>
    <message id="0320">
        <source>Extra Features:</source>
        <extracomment>Caption of lblExtraFeaturesDutch (label, Multiple Items tab)</extracomment>
        <translation>Zusatzoptionen:</translation>
    </message>
    <message id="0321">
        <source>Items Offered</source>
        <extracomment>Caption of frameDutchOffer (frame, Multiple Items tab)</extracomment>
        <translation>Angebotene Artikel</translation>
    </message>
    <message id="0322">
        <source>eBay Motors item (no vehicles)</source>
        <extracomment>Caption of chkEBayMotorsDutch (check box, Multiple Items tab)</extracomment>
        <translation>eBay Motors (keine Fahrzeuge)</translation>
    </message>
    <message id="0323">
        <source>Choose this option if you placed your item on the eBay Motors site.</source>
        <extracomment>Tooltip of chkEBayMotorsDutch (check box, Multiple Items tab)</extracomment>
        <translation>Wählen Sie diese Option, wenn Sie Ihren Artikel bei eBay Motors eingestellt haben.</translation>
    </message>
    <message id="0324">
        <source>Enter the opening bid for the items.</source>
        <extracomment>Tooltip of txtDutchOpeningPrice (text box, Multiple Items tab)</extracomment>
        <translation>Geben Sie den Startpreis der Artikel ein.</translation>
    </message>
    <message id="0325">
        <source>Enter the number of items offered.</source>
        <extracomment>Tooltip of txtDutchItemsOffered (text box, Multiple Items tab)</extracomment>
        <translation>Geben Sie die Anzahl der angebotenen Artikel ein.</translation>
    </message>
    <message id="0326">
        <source>US$</source>
        <extracomment>Caption of lblCurrency7 (label, Multiple Items tab)</extracomment>
        <translation>US$</translation>
    </message>
    <message id="0327">
        <source>Opening Bid:</source>
        <extracomment>Caption of lblDutchOpeningPrice (label, Multiple Items tab)</extracomment>
        <translation>Startpreis:</translation>
    </message>
    <message id="0328">
        <source>No. of Items:</source>
        <extracomment>Caption of lblDutchItemsOffered (label, Multiple Items tab)</extracomment>
        <translation>Anzahl Artikel:</translation>
    </message>
    <message id="0329">
        <source>Calculate</source>
        <extracomment>Caption of cmdCalculate (button, Single Item tab)</extracomment>
        <translation>Berechnen</translation>
    </message>
    <message id="0330">
        <source>Click here to calculate your total eBay fees for listing this item.</source>
        <extracomment>Tooltip of cmdCalculate (button, Single Item tab)</extracomment>
        <translation>Klicken Sie hier, um Ihre gesamten eBay-Gebühren für das Angebot dieses Artikels zu berechnen.</translation>
    </message>
    <message id="0331">
        <source>Clear All</source>
        <extracomment>Caption of cmdClearAll (button, Single Item tab)</extracomment>
        <translation>Alles löschen</translation>
    </message>
    <message id="0332">
        <source>Click here to clear all entries.</source>
        <extracomment>Tooltip of cmdClearAll (button, Single Item tab)</extracomment>
        <translation>Klicken Sie hier, um alle Eingaben zu löschen.</translation>
    </message>
    <message id="0333">
        <source>Your total eBay fees.</source>
        <extracomment>Tooltip of txtFees (text box, Single Item tab)</extracomment>
        <translation>Ihre gesamten eBay-Gebühren.</translation>
    </message>
    <message id="0334">
        <source>Enter the final sales price of your item.</source>
        <extracomment>Tooltip of txtPrice (text box, Single Item tab)</extracomment>
        <translation>Geben Sie den endgültigen Verkaufspreis Ihres Artikels ein.</translation>
    </message>
    <message id="0335">
        <source>Extra Listing Features</source>
        <extracomment>Caption of frmFeatures (frame, Single Item tab)</extracomment>
        <translation>Zusatzoptionen</translation>
    </message>
    <message id="0336">
        <source>Scheduled Listing</source>
        <extracomment>Caption of chkScheduled (check box, Single Item tab)</extracomment>
        <translation>Startzeitplanung</translation>
    </message>
    <message id="0337">
        <source>For eBay Picture Services photos that can be enlarged to 800 x 600.  One price for all photos.</source>
        <extracomment>Tooltip of chkScheduled (check box, Single Item tab)</extracomment>
        <translation>Für Bilder aus dem eBay-Bilderservice, die sich auf 800 × 600 vergrößern lassen. Ein Preis für alle Bilder.</translation>
    </message>
    <message id="0338">
        <source>Slideshow</source>
        <extracomment>Caption of chkSlideshow (check box, Single Item tab)</extracomment>
        <translation>Diashow</translation>
    </message>
    <message id="0339">
        <source>eBay Picture Services slideshow.</source>
        <extracomment>Tooltip of chkSlideshow (check box, Single Item tab)</extracomment>
        <translation>Diashow des eBay-Bilderservice.</translation>
    </message>
    <message id="0340">
        <source>Supersize Picture</source>
        <extracomment>Caption of chkSupersizePhotos (check box, Single Item tab)</extracomment>
        <translation>XXL-Foto</translation>
    </message>
    <message id="0341">
        <source>For eBay Picture Services photos that can be enlarged to 800 x 600.  One price for all photos.</source>
        <extracomment>Tooltip of chkSupersizePhotos (check box, Single Item tab)</extracomment>
        <translation>Für Bilder aus dem eBay-Bilderservice, die sich auf 800 × 600 vergrößern lassen. Ein Preis für alle Bilder.</translation>
    </message>
    <message id="0342">
        <source>Choose the number of extra photos used (beyond the free one).</source>
        <extracomment>Tooltip of cboExtraPhotos (list, Single Item tab)</extracomment>
        <translation>Wählen Sie die Anzahl der weiteren Bilder (zusätzlich zum kostenlosen Bild).</translation>
    </message>
    <message id="0343">
        <source>Extra Pictures</source>
        <extracomment>Caption of chkExtraPhotos (check box, Single Item tab)</extracomment>
        <translation>Weitere Bilder</translation>
    </message>
    <message id="0344">
        <source>For users of eBay Picture Services who use more than one photo.</source>
        <extracomment>Tooltip of chkExtraPhotos (check box, Single Item tab)</extracomment>
        <translation>Für Nutzer des eBay-Bilderservice, die mehr als ein Bild verwenden.</translation>
    </message>
    <message id="0345">
        <source>Buy it Now</source>
        <extracomment>Caption of chkBIN (check box, Single Item tab)</extracomment>
        <translation>Sofort-Kaufen</translation>
    </message>
    <message id="0346">
        <source>Your item can be purchased immediately at a prespecified flat rate.</source>
        <extracomment>Tooltip of chkBIN (check box, Single Item tab)</extracomment>
        <translation>Ihr Artikel kann sofort zu einem vorher festgelegten Preis gekauft werden.</translation>
    </message>
    <message id="0347">
        <source>Shows the total cost of all extra listing fetures.</source>
        <extracomment>Tooltip of txtExtras (text box, Single Item tab)</extracomment>
        <translation>Zeigt die Gesamtkosten aller Zusatzoptionen.</translation>
    </message>
    <message id="0348">
        <source>Ten Day Auction</source>
        <extracomment>Caption of chkTenDayAuction (check box, Single Item tab)</extracomment>
        <translation>10-Tage-Auktion</translation>
    </message>
    <message id="0349">
        <source>Item ran for 10-days, the longest available auction length.</source>
        <extracomment>Tooltip of chkTenDayAuction (check box, Single Item tab)</extracomment>
        <translation>Der Artikel wurde 10 Tage lang angeboten – die längste verfügbare Auktionsdauer.</translation>
    </message>
    <message id="0350">
        <source>Two Categories</source>
        <extracomment>Caption of chkTwoCategories (check box, Single Item tab); Caption of chkDutchTwoCategories (check box, Multiple Items tab)</extracomment>
        <translation>Zwei Kategorien</translation>
    </message>
    <message id="0351">
        <source>Check this box if you listed your item in two categories.</source>
        <extracomment>Tooltip of chkTwoCategories (check box, Single Item tab); Tooltip of chkDutchTwoCategories (check box, Multiple Items tab)</extracomment>
        <translation>Kreuzen Sie dieses Kästchen an, wenn Sie Ihren Artikel in zwei Kategorien eingestellt haben.</translation>
    </message>
    <message id="0352">
        <source>Featured Plus</source>
        <extracomment>Caption of chkFeaturedCategory (check box, Single Item tab)</extracomment>
        <translation>Top-Angebot</translation>
    </message>
    <message id="0353">
        <source>Also known as &apos;Featured Category&apos; - placed at the top of the listings in a category.</source>
        <extracomment>Tooltip of chkFeaturedCategory (check box, Single Item tab)</extracomment>
        <translation>Auch „Top-Angebot in der Kategorie“ genannt – steht ganz oben in der Artikelliste einer Kategorie.</translation>
    </message>
    <message id="0354">
        <source>Home Page Featured</source>
        <extracomment>Caption of chkFeatured (check box, Single Item tab)</extracomment>
        <translation>Top-Angebot Startseite</translation>
    </message>
    <message id="0355">
        <source>Featured on the eBay home page.</source>
        <extracomment>Tooltip of chkFeatured (check box, Single Item tab)</extracomment>
        <translation>Erscheint als Top-Angebot auf der eBay-Startseite.</translation>
    </message>
    <message id="0356">
        <source>Gallery</source>
        <extracomment>Caption of chkGallery (check box, Single Item tab)</extracomment>
        <translation>Galerie</translation>
    </message>
    <message id="0357">
        <source>A photo of the item appears in the gallery.</source>
        <extracomment>Tooltip of chkGallery (check box, Single Item tab)</extracomment>
        <translation>Ein Bild des Artikels erscheint in der Galerie.</translation>
    </message>
    <message id="0358">
        <source>Gallery Featured</source>
        <extracomment>Caption of chkGalleryFeatured (check box, Single Item tab)</extracomment>
        <translation>Top-Angebot Galerie</translation>
    </message>
    <message id="0359">
        <source>Featured at the top of the gallery pages.</source>
        <extracomment>Tooltip of chkGalleryFeatured (check box, Single Item tab)</extracomment>
        <translation>Erscheint als Top-Angebot ganz oben auf den Galerieseiten.</translation>
    </message>
    <message id="0360">
        <source>Highlight</source>
        <extracomment>Caption of chkHighlighted (check box, Single Item tab)</extracomment>
        <translation>Highlight</translation>
    </message>
    <message id="0361">
        <source>You listing is highlighted yellow, to make it stand out from other listings.</source>
        <extracomment>Tooltip of chkHighlighted (check box, Single Item tab)</extracomment>
        <translation>Ihr Angebot ist gelb hinterlegt, damit es sich von anderen Angeboten abhebt.</translation>
    </message>
    <message id="0362">
        <source>Bold</source>
        <extracomment>Caption of chkBold (check box, Single Item tab)</extracomment>
        <translation>Fettschrift</translation>
    </message>
    <message id="0363">
        <source>Bold text in the title of your auction, which makes it stand out from others on the listings pages.</source>
        <extracomment>Tooltip of chkBold (check box, Single Item tab)</extracomment>
        <translation>Der Titel Ihrer Auktion erscheint in Fettschrift und hebt sich dadurch in den Artikellisten von anderen ab.</translation>
    </message>
    <message id="0364">
        <source>Gift Services</source>
        <extracomment>Caption of chkGiftIcon (check box, Single Item tab)</extracomment>
        <translation>Geschenkservice</translation>
    </message>
    <message id="0365">
        <source>A small, often seasonally-related icon next to your auction title in the listings.</source>
        <extracomment>Tooltip of chkGiftIcon (check box, Single Item tab)</extracomment>
        <translation>Ein kleines, oft zur Jahreszeit passendes Symbol neben dem Titel Ihrer Auktion in den Artikellisten.</translation>
    </message>
    <message id="0366">
        <source>US$</source>
        <extracomment>Caption of lblCurrency3 (label, Single Item tab)</extracomment>
        <translation>US$</translation>
    </message>
    <message id="0367">
        <source>Extra Features:</source>
        <extracomment>Caption of lblExtraFeatures (label, Single Item tab)</extracomment>
        <translation>Zusatzoptionen:</translation>
    </message>
    <message id="0368">
        <source>Listing Type </source>
        <extracomment>Caption of frmReserve (frame, Single Item tab)</extracomment>
        <translation>Angebotsformat </translation>
    </message>
    <message id="0369">
        <source>Choose the type and length of your real estate auction.</source>
        <extracomment>Tooltip of cboRealEstateType (list, Single Item tab)</extracomment>
        <translation>Wählen Sie Art und Dauer Ihrer Immobilienauktion.</translation>
    </message>
    <message id="0370">
        <source>Other real estate</source>
        <extracomment>Caption of optOtherRealEstate (option button, Single Item tab)</extracomment>
        <translation>Andere Immobilie</translation>
    </message>
    <message id="0371">
        <source>Choose this option for any real estate auction other than for a timeshare or land.</source>
        <extracomment>Tooltip of optOtherRealEstate (option button, Single Item tab)</extracomment>
        <translation>Wählen Sie diese Option für alle Immobilienauktionen außer für Timeshare-Objekte und Grundstücke.</translation>
    </message>
    <message id="0372">
        <source>Timeshare/Land</source>
        <extracomment>Caption of optTimeshare (option button, Single Item tab)</extracomment>
        <translation>Timeshare/Grundst.</translation>
    </message>
    <message id="0373">
        <source>Choose this option if you are selling a timeshare or land.</source>
        <extracomment>Tooltip of optTimeshare (option button, Single Item tab)</extracomment>
        <translation>Wählen Sie diese Option, wenn Sie ein Timeshare-Objekt oder ein Grundstück verkaufen.</translation>
    </message>
    <message id="0374">
        <source>Other Vehicle</source>
        <extracomment>Caption of optOtherVehicle (option button, Single Item tab)</extracomment>
        <translation>Anderes Fahrzeug</translation>
    </message>
    <message id="0375">
        <source>Choose this option of you listed a vehicle that was not a motorcycle.</source>
        <extracomment>Tooltip of optOtherVehicle (option button, Single Item tab)</extracomment>
        <translation>Wählen Sie diese Option, wenn Sie ein Fahrzeug eingestellt haben, das kein Motorrad ist.</translation>
    </message>
    <message id="0376">
        <source>Motorcycle</source>
        <extracomment>Caption of optMotorcycle (option button, Single Item tab)</extracomment>
        <translation>Motorrad</translation>
    </message>
    <message id="0377">
        <source>Choose this option if you listed a vehicle that was a motorcycle.</source>
        <extracomment>Tooltip of optMotorcycle (option button, Single Item tab)</extracomment>
        <translation>Wählen Sie diese Option, wenn Sie als Fahrzeug ein Motorrad eingestellt haben.</translation>
    </message>
    <message id="0382">
        <source>eBay Motors</source>
        <extracomment>Caption of chkMotors (check box, Single Item tab)</extracomment>
        <translation>eBay Motors</translation>
    </message>
    <message id="0383">
        <source>Check this box if you placed your item in eBay Motors, whether or not it is a vehicle.</source>
        <extracomment>Tooltip of chkMotors (check box, Single Item tab)</extracomment>
        <translation>Kreuzen Sie dieses Kästchen an, wenn Sie Ihren Artikel bei eBay Motors eingestellt haben, gleich ob er ein Fahrzeug ist oder nicht.</translation>
    </message>
    <message id="0384">
        <source>Vehicle</source>
        <extracomment>Caption of chkVehicle (check box, Single Item tab)</extracomment>
        <translation>Fahrzeug</translation>
    </message>
    <message id="0385">
        <source>Check this box if your item is a vehicle.</source>
        <extracomment>Tooltip of chkVehicle (check box, Single Item tab)</extracomment>
        <translation>Kreuzen Sie dieses Kästchen an, wenn Ihr Artikel ein Fahrzeug ist.</translation>
    </message>
    <message id="0386">
        <source>Real Estate</source>
        <extracomment>Caption of chkRealEstate (check box, Single Item tab)</extracomment>
        <translation>Immobilie</translation>
    </message>
    <message id="0387">
        <source>Check this box if you listed this item in the Real Estate catogory.</source>
        <extracomment>Tooltip of chkRealEstate (check box, Single Item tab)</extracomment>
        <translation>Kreuzen Sie dieses Kästchen an, wenn Sie diesen Artikel in der Kategorie „Immobilien“ eingestellt haben.</translation>
    </message>
    <message id="0388">
        <source>Shows the basic listing cost for this item.</source>
        <extracomment>Tooltip of txtInsertionFee (text box, Single Item tab)</extracomment>
        <translation>Zeigt die Angebotsgebühr für diesen Artikel ohne Zusatzoptionen.</translation>
    </message>
    <message id="0389">
        <source>Enter the opening bid or reserve price of the item.</source>
        <extracomment>Tooltip of txtStartingPrice (text box, Single Item tab)</extracomment>
        <translation>Geben Sie den Startpreis oder den Mindestpreis des Artikels ein.</translation>
    </message>
    <message id="0390">
        <source>US$</source>
        <extracomment>Caption of lblCurrency2 (label, Single Item tab)</extracomment>
        <translation>US$</translation>
    </message>
    <message id="0391">
        <source>US$</source>
        <extracomment>Caption of lblCurrency1 (label, Single Item tab)</extracomment>
        <translation>US$</translation>
    </message>
    <message id="0392">
        <source>Listing Fee:</source>
        <extracomment>Caption of lblInsertionFee (label, Single Item tab)</extracomment>
        <translation>Angebotsgebühr:</translation>
    </message>
    <message id="0393">
        <source>Opening Bid:</source>
        <extracomment>Caption of lblStartingPrice (label, Single Item tab)</extracomment>
        <translation>Startpreis:</translation>
    </message>
    <message id="0394">
        <source>US$</source>
        <extracomment>Caption of lblCurrency8 (label, Multiple Items tab)</extracomment>
        <translation>US$</translation>
    </message>
    <message id="0395">
        <source>Deutsche Post</source>
        <extracomment>Caption of lblPostal_10 (label, Shipping tab)</extracomment>
        <translation>Deutsche Post</translation>
    </message>
    <message id="0396">
        <source>Fees Per Item:</source>
        <extracomment>Caption of lblDutchFeesPerItem (label, Multiple Items tab)</extracomment>
        <translation>Gebühr je Artikel:</translation>
    </message>
    <message id="0397">
        <source>US$</source>
        <extracomment>Caption of lblCurrency15 (label, Multiple Items tab)</extracomment>
        <translation>US$</translation>
    </message>
    <message id="0398">
        <source>Royal Mail</source>
        <extracomment>Caption of lblPostal_9 (label, Shipping tab)</extracomment>
        <translation>Royal Mail</translation>
    </message>
    <message id="0399">
        <source>Parcelforce Worldwide</source>
        <extracomment>Caption of lblPostal_8 (label, Shipping tab)</extracomment>
        <translation>Parcelforce Worldwide</translation>
    </message>
    <message id="0400">
        <source>DHL UK</source>
        <extracomment>Caption of lblPostal_7 (label, Shipping tab)</extracomment>
        <translation>DHL UK</translation>
    </message>
    <message id="0401">
        <source>US$</source>
        <extracomment>Caption of lblCurrency10 (label, Multiple Items tab)</extracomment>
        <translation>US$</translation>
    </message>
    <message id="0402">
        <source>US$</source>
        <extracomment>Caption of lblCurrency9 (label, Multiple Items tab)</extracomment>
        <translation>US$</translation>
    </message>
    <message id="0403">
        <source>US$</source>
        <extracomment>Caption of lblCurrency6 (label, Single Item tab)</extracomment>
        <translation>US$</translation>
    </message>
    <message id="0404">
        <source>US$</source>
        <extracomment>Caption of lblCurrency5 (label, Single Item tab)</extracomment>
        <translation>US$</translation>
    </message>
    <message id="0405">
        <source>US$</source>
        <extracomment>Caption of lblCurrency4 (label, Single Item tab)</extracomment>
        <translation>US$</translation>
    </message>
    <message id="0406">
        <source>Canada Post</source>
        <extracomment>Caption of lblPostal_6 (label, Shipping tab)</extracomment>
        <translation>Canada Post</translation>
    </message>
    <message id="0407">
        <source>Packing Services</source>
        <extracomment>Caption of lblPacking (label, Shipping tab)</extracomment>
        <translation>Verpackungsdienste</translation>
    </message>
    <message id="0408">
        <source>DHL</source>
        <extracomment>Caption of lblPostal_5 (label, Shipping tab)</extracomment>
        <translation>DHL</translation>
    </message>
    <message id="0409">
        <source>Airborn Express</source>
        <extracomment>Caption of lblPostal_4 (label, Shipping tab)</extracomment>
        <translation>Airborne Express</translation>
    </message>
    <message id="0410">
        <source>Creighters and Freighters</source>
        <extracomment>Link to a carrier, unused; its link is never translated.</extracomment>
        <translation>Craters and Freighters</translation>
    </message>
    <message id="0411">
        <source>Federal Express</source>
        <extracomment>Caption of lblPostal_2 (label, Shipping tab)</extracomment>
        <translation>Federal Express</translation>
    </message>
    <message id="0412">
        <source>United Parcel Service</source>
        <extracomment>Caption of lblPostal_1 (label, Shipping tab)</extracomment>
        <translation>United Parcel Service</translation>
    </message>
    <message id="0413">
        <source>United States Postal Service</source>
        <extracomment>Caption of lblPostal_0 (label, Shipping tab)</extracomment>
        <translation>United States Postal Service</translation>
    </message>
    <message id="0414">
        <source>Links to Online Shipping Cost Calculators</source>
        <extracomment>Caption of lblLinks (label, Shipping tab)</extracomment>
        <translation>Links zu Online-Versandkostenrechnern</translation>
    </message>
    <message id="0415">
        <source>Final Value Fees:</source>
        <extracomment>Caption of lblFVF (label, Single Item tab)</extracomment>
        <translation>Verkaufsprovision:</translation>
    </message>
    <message id="0416">
        <source>Total Dutch Auction Sales:</source>
        <extracomment>Caption of lblTotalDutchAuctionSales (label, Multiple Items tab)</extracomment>
        <translation>Gesamtumsatz Powerauktion:</translation>
    </message>
    <message id="0417">
        <source>Total eBay Fees:</source>
        <extracomment>Caption of lblDutchFees (label, Multiple Items tab)</extracomment>
        <translation>eBay-Gesamtgebühren:</translation>
    </message>
    <message id="0418">
        <source>Lowest Successful Bid:</source>
        <extracomment>Caption of lblDutchSalesPrice (label, Multiple Items tab)</extracomment>
        <translation>Niedrigstes erfolgr. Gebot:</translation>
    </message>
    <message id="0419">
        <source>No. of Items Sold:</source>
        <extracomment>Caption of lblDutchItemsSold (label, Multiple Items tab)</extracomment>
        <translation>Verkaufte Artikel:</translation>
    </message>
    <message id="0420">
        <source>Total eBay Fees:</source>
        <extracomment>Caption of lblFees (label, Single Item tab)</extracomment>
        <translation>eBay-Gesamtgebühren:</translation>
    </message>
    <message id="0421">
        <source>Closing Bid:</source>
        <extracomment>Caption of lblPrice (label, Single Item tab)</extracomment>
        <translation>Höchstgebot:</translation>
    </message>
    <message id="0422">
        <source>&amp;File</source>
        <extracomment>Caption of mnuFile (menu, main window)</extracomment>
        <translation>&amp;Datei</translation>
    </message>
    <message id="0423">
        <source>&amp;New Window</source>
        <extracomment>Caption of mnuFileNewWindow (menu entry, main window)</extracomment>
        <translation>&amp;Neues Fenster</translation>
    </message>
    <message id="0424">
        <source>&amp;Print Notepad</source>
        <extracomment>Caption of mnuFilePrint (menu entry, main window)</extracomment>
        <translation>Notizen &amp;drucken</translation>
    </message>
    <message id="0425">
        <source>E&amp;xit</source>
        <extracomment>Caption of mnuFileExit (menu entry, main window)</extracomment>
        <translation>&amp;Beenden</translation>
    </message>
    <message id="0426">
        <source>&amp;Options</source>
        <extracomment>Caption of mnuOptions (menu, main window)</extracomment>
        <translation>&amp;Optionen</translation>
    </message>
    <message id="0427">
        <source>Sa&amp;ve Current Settings</source>
        <extracomment>Caption of mnuOptionsSaveSettings (menu entry, main window)</extracomment>
        <translation>Aktuelle Einstellungen &amp;speichern</translation>
    </message>
    <message id="0428">
        <source>&amp;Keep on Top</source>
        <extracomment>Caption of mnuOptionsOnTop (menu entry, main window)</extracomment>
        <translation>Immer im &amp;Vordergrund</translation>
    </message>
    <message id="0429">
        <source>Auction Site</source>
        <extracomment>Caption of mnuOptionsSite (menu, main window)</extracomment>
        <translation>Auktions-Website</translation>
    </message>
    <message id="0430">
        <source>eBay.com</source>
        <extracomment>Caption of mnuOptionsSiteEbay (menu entry, main window)</extracomment>
        <translation>eBay.com</translation>
    </message>
    <message id="0431">
        <source>eBay UK</source>
        <extracomment>Caption of mnuOptionsSiteUK (menu entry, main window)</extracomment>
        <translation>eBay Großbritannien</translation>
    </message>
    <message id="0432">
        <source>eBay Canada</source>
        <extracomment>Caption of mnuOptionsSiteCanada (menu entry, main window)</extracomment>
        <translation>eBay Kanada</translation>
    </message>
    <message id="0433">
        <source>eBay Germany</source>
        <extracomment>Caption of mnuOptionsSiteGermany (menu entry, main window)</extracomment>
        <translation>eBay Deutschland</translation>
    </message>
    <message id="0434">
        <source>&amp;Help</source>
        <extracomment>Caption of mnuHelp (menu, main window)</extracomment>
        <translation>&amp;Hilfe</translation>
    </message>
    <message id="0435">
        <source>&amp;Contents</source>
        <extracomment>Caption of mnuHelpContents (menu entry, main window)</extracomment>
        <translation>&amp;Inhalt</translation>
    </message>
    <message id="0436">
        <source>&amp;About</source>
        <extracomment>Caption of mnuHelpAbout (menu entry, main window)</extracomment>
        <translation>I&amp;nfo</translation>
    </message>
    <message id="0439">
        <source>&amp;Ostrevane Homepage</source>
        <extracomment>Caption of mnuHelpHomepage (menu entry, main window)</extracomment>
        <translation>&amp;Ostrevane-Homepage</translation>
    </message>
    <message id="0440">
        <source>Chec&amp;k for Updated Version Online</source>
        <extracomment>Caption of mnuHelpUpdate (menu entry, main window)</extracomment>
        <translation>Online nach neuer Version &amp;suchen</translation>
    </message>
    <message id="0441">
        <source>&amp;Send Feedback or Bug Report by Email</source>
        <extracomment>Caption of mnuHelpFeedback (menu entry, main window)</extracomment>
        <translation>&amp;Feedback oder Fehlerbericht per E-Mail senden</translation>
    </message>
    <message id="0442">
        <source>&amp;Join Ostrevane Mailing List</source>
        <extracomment>Caption of mnuHelpSubscribe (menu entry, main window)</extracomment>
        <translation>Ostrevane-&amp;Mailingliste abonnieren</translation>
    </message>
    <message id="0443">
        <source>Sour&amp;ces</source>
        <extracomment>Caption of mnuHelpSources (menu, main window)</extracomment>
        <translation>&amp;Quellen</translation>
    </message>
    <message id="0444">
        <source>eBay.com Fees</source>
        <extracomment>Caption of mnuHelpSourcesEbay (menu entry, main window)</extracomment>
        <translation>Gebühren bei eBay.com</translation>
    </message>
    <message id="0445">
        <source>eBay Motors Fees</source>
        <extracomment>Caption of mnuHelpSourcesEbayMotors (menu entry, main window)</extracomment>
        <translation>Gebühren bei eBay Motors</translation>
    </message>
    <message id="0446">
        <source>eBay Canada Fees</source>
        <extracomment>Caption of mnuHelpSourcesEbayCanada (menu entry, main window)</extracomment>
        <translation>Gebühren bei eBay Kanada</translation>
    </message>
    <message id="0447">
        <source>eBay UK Fees</source>
        <extracomment>Caption of mnuHelpSourcesEbayUK (menu entry, main window)</extracomment>
        <translation>Gebühren bei eBay Großbritannien</translation>
    </message>
    <message id="0448">
        <source>eBay Germany Fees</source>
        <extracomment>Caption of mnuHelpSourcesEbayGermany (menu entry, main window)</extracomment>
        <translation>Gebühren bei eBay Deutschland</translation>
    </message>
    <message id="0449">
        <source>eBay.com Picture Services Fees</source>
        <extracomment>Caption of mnuHelpSourcesEbayPictures (menu entry, main window)</extracomment>
        <translation>Bilderservice-Gebühren bei eBay.com</translation>
    </message>
    <message id="0450">
        <source>eBay UK Picture Services Fees</source>
        <extracomment>Caption of mnuHelpSourcesEbayUKPictures (menu entry, main window)</extracomment>
        <translation>Bilderservice-Gebühren bei eBay Großbritannien</translation>
    </message>
    <message id="0451">
        <source>eBay Canada Picture Services Fees</source>
        <extracomment>Caption of mnuHelpSourcesEbayCanadaPictures (menu entry, main window)</extracomment>
        <translation>Bilderservice-Gebühren bei eBay Kanada</translation>
    </message>
    <message id="0452">
        <source>eBay Germany Picture Services Fees</source>
        <extracomment>Caption of mnuHelpSourcesEbayGermanyPictures (menu entry, main window)</extracomment>
        <translation>Bilderservice-Gebühren bei eBay Deutschland</translation>
    </message>
    <message id="0453">
        <source>PayPal US Fees</source>
        <extracomment>Caption of mnuHelpSourcesPayPalUS (menu entry, main window)</extracomment>
        <translation>PayPal-Gebühren USA</translation>
    </message>
    <message id="0454">
        <source>PayPal International Fees</source>
        <extracomment>Caption of mnuHelpPayPalInternational (menu entry, main window)</extracomment>
        <translation>PayPal-Gebühren international</translation>
    </message>
    <message id="0455">
        <source>eBay Payments US/Canada Fees</source>
        <extracomment>Caption of mnuHelpBillpointUS (menu entry, main window)</extracomment>
        <translation>eBay-Payments-Gebühren USA/Kanada</translation>
    </message>
    <message id="0456">
        <source>eBay Payments UK Fees</source>
        <extracomment>Caption of mnuHelpBillpointUK (menu entry, main window)</extracomment>
        <translation>eBay-Payments-Gebühren Großbritannien</translation>
    </message>
    <message id="0458">
        <source>&amp;Update Now</source>
        <extracomment>Button of the update window.</extracomment>
        <translation>&amp;Jetzt laden</translation>
    </message>
    <message id="0459">
        <source>Update &amp;Later</source>
        <extracomment>Button of the update window.</extracomment>
        <translation>&amp;Später laden</translation>
    </message>
    <message id="0460">
        <source>Tessaloom - Calculate eBay Auction Fees</source>
        <extracomment>Title of a window; keep the name Tessaloom.</extracomment>
        <translation>Tessaloom – eBay-Auktionsgebühren berechnen</translation>
    </message>
    <message id="0462">
        <source>Could not load the localization resources from some reason.</source>
        <extracomment>Message box.</extracomment>
        <translation>Die Sprachdateien konnten aus irgendeinem Grund nicht geladen werden.</translation>
    </message>
    <message id="0463">
        <source>Error</source>
        <extracomment>Title of message boxes.</extracomment>
        <translation>Fehler</translation>
    </message>
    <message id="0464">
        <source>Languages</source>
        <extracomment>Caption of menuLang (menu, main window)</extracomment>
        <translation>Sprachen</translation>
    </message>
    <message id="0465">
        <source>Tessaloom</source>
        <extracomment>The name of the program; never translated.</extracomment>
        <translation>Tessaloom</translation>
    </message>
    <message id="0470">
        <source>UPS Germany</source>
        <extracomment>Caption of lblPostal_11 (label, Shipping tab)</extracomment>
        <translation>UPS Germany</translation>
    </message>
    <message id="0505">
        <source>System Information Is Unavailable At This Time</source>
        <extracomment>Message box.</extracomment>
        <translation>Die Systeminformationen sind derzeit nicht verfügbar.</translation>
    </message>
    <message id="0601">
        <source>If this is the first time you are using Tessaloom, please allow it to check the Ostrevane server for updates.  This will ensure the application runs properly, and will only take a moment.</source>
        <extracomment>Prompt of the first-use update check; keep the names Tessaloom and Ostrevane.</extracomment>
        <translation>Wenn Sie Tessaloom zum ersten Mal verwenden, lassen Sie das Programm bitte auf dem Ostrevane-Server nach Updates suchen. So ist sichergestellt, dass es einwandfrei läuft; der Vorgang dauert nur einen Augenblick.</translation>
    </message>
    <message id="0603">
        <source>Error</source>
        <extracomment>Title of the error window.</extracomment>
        <translation>Fehler</translation>
    </message>
    <message id="0604">
        <source>Please take a moment to send this error information to the Ostrevane technical support team for review.  You may also continue without sending this error to us.</source>
        <extracomment>Prompt of the error window; keep the name Ostrevane.</extracomment>
        <translation>Bitte nehmen Sie sich einen Augenblick Zeit und senden Sie diese Fehlerinformationen zur Prüfung an den technischen Support von Ostrevane. Sie können auch weiterarbeiten, ohne uns diesen Fehler zu senden.</translation>
    </message>
    <message id="0610">
        <source>Listing Icon</source>
        <extracomment>Notepad: listing icon.</extracomment>
        <translation>Angebotssymbol</translation>
    </message>
    <message id="0611">
        <source>Gift Services</source>
        <extracomment>Caption of chkGiftIcon (check box, Single Item tab) while the listing is no vehicle.</extracomment>
        <translation>Geschenkservice</translation>
    </message>
    <message id="0615">
        <source>Gift Services</source>
        <extracomment>Caption of a gift check box.</extracomment>
        <translation>Geschenkservice</translation>
    </message>
    <message id="0616">
        <source>Listing Icon</source>
        <extracomment>Caption of chkGiftIcon (check box, Single Item tab) at eBay Motors.</extracomment>
        <translation>Angebotssymbol</translation>
    </message>
    <message id="0617">
        <source>Op&amp;ening Bid:</source>
        <extracomment>Label of the opening bid (Single Item tab), with mnemonic; must not clash with the tabs and menus.</extracomment>
        <translation>&amp;Startpreis:</translation>
    </message>
    <message id="0618">
        <source>R&amp;eserve Price:</source>
        <extracomment>Label of the reserve price (Single Item tab), shown in place of the opening bid.</extracomment>
        <translation>Mindestp&amp;reis:</translation>
    </message>
    <message id="0619">
        <source>N/A</source>
        <extracomment>A fee that cannot be worked out: not available, short.</extracomment>
        <translation>k. A.</translation>
    </message>
    <message id="0620">
        <source>Tessaloom for eBay.com</source>
        <extracomment>Window title; keep Tessaloom.</extracomment>
        <translation>Tessaloom für eBay.com</translation>
    </message>
    <message id="0621">
        <source>Buyer outside USA</source>
        <extracomment>Caption of chkInternationalPayPal on eBay.com.</extracomment>
        <translation>Käufer nicht aus den USA</translation>
    </message>
    <message id="0622">
        <source>Tessaloom for eBay Canada (items listed in C$)</source>
        <extracomment>Window title; keep Tessaloom.</extracomment>
        <translation>Tessaloom für eBay Kanada (Artikel in C$ eingestellt)</translation>
    </message>
    <message id="0623">
        <source>Buyer outside Canada/USA</source>
        <extracomment>Caption of chkInternationalPayPal on eBay Canada.</extracomment>
        <translation>Käufer nicht aus Kanada/den USA</translation>
    </message>
    <message id="0624">
        <source>Tessaloom for eBay UK</source>
        <extracomment>Window title; keep Tessaloom.</extracomment>
        <translation>Tessaloom für eBay Großbritannien</translation>
    </message>
    <message id="0625">
        <source>Buyer outside UK</source>
        <extracomment>Caption of chkInternationalPayPal on eBay UK.</extracomment>
        <translation>Käufer nicht aus Großbritannien</translation>
    </message>
    <message id="0626">
        <source>Tessaloom for eBay Germany</source>
        <extracomment>Window title; keep Tessaloom.</extracomment>
        <translation>Tessaloom für eBay Deutschland</translation>
    </message>
    <message id="0627">
        <source>Buyer outside Germany</source>
        <extracomment>Caption of chkInternationalPayPal on eBay Germany.</extracomment>
        <translation>Käufer nicht aus Deutschland</translation>
    </message>
    <message id="0628">
        <source>hide notepad</source>
        <extracomment>Caption of cmdNotepad (button) while the notepad is open.</extracomment>
        <translation>Notizen verbergen</translation>
    </message>
    <message id="0629">
        <source>view notepad</source>
        <extracomment>Caption of cmdNotepad (button) while the notepad is closed.</extracomment>
        <translation>Notizen zeigen</translation>
    </message>
    <message id="0630">
        <source>3-10 day auction</source>
        <extracomment>Item of the list of real-estate listings.</extracomment>
        <translation>3–10-Tage-Auktion</translation>
    </message>
    <message id="0631">
        <source>30-day auction</source>
        <extracomment>Item of the list of real-estate listings.</extracomment>
        <translation>30-Tage-Auktion</translation>
    </message>
    <message id="0632">
        <source>30-day ad</source>
        <extracomment>Item of the list of real-estate listings: a classified ad, no auction.</extracomment>
        <translation>30-Tage-Anzeige</translation>
    </message>
    <message id="0633">
        <source>90-day ad</source>
        <extracomment>Item of the list of real-estate listings: a classified ad, no auction.</extracomment>
        <translation>90-Tage-Anzeige</translation>
    </message>
    <message id="0634">
        <source>Reserve Price: </source>
        <extracomment>Notepad label; keep the blank at the end.</extracomment>
        <translation>Mindestpreis: </translation>
    </message>
    <message id="0635">
        <source>Opening Bid: </source>
        <extracomment>Notepad label; keep the blank at the end.</extracomment>
        <translation>Startpreis: </translation>
    </message>
    <message id="0636">
        <source>Y</source>
        <extracomment>Notepad: yes, one letter.</extracomment>
        <translation>J</translation>
    </message>
    <message id="0637">
        <source>N</source>
        <extracomment>Notepad: no, one letter.</extracomment>
        <translation>N</translation>
    </message>
    <message id="0638">
        <source>REGULAR AUCTION:  </source>
        <extracomment>Notepad label; keep the blanks at the end.</extracomment>
        <translation>NORMALE AUKTION:  </translation>
    </message>
    <message id="0639">
        <source>Item Sold?: </source>
        <extracomment>Notepad label; keep the blanks at the end.</extracomment>
        <translation>Artikel verkauft? </translation>
    </message>
    <message id="0640">
        <source>Closing Bid: </source>
        <extracomment>Notepad label; keep the blanks at the end.</extracomment>
        <translation>Höchstgebot: </translation>
    </message>
    <message id="0641">
        <source>Listing Fee: </source>
        <extracomment>Notepad label; keep the blanks at the end.</extracomment>
        <translation>Angebotsgebühr: </translation>
    </message>
    <message id="0642">
        <source>Extra Features Fees: </source>
        <extracomment>Notepad label; keep the blanks at the end.</extracomment>
        <translation>Gebühren für Zusatzoptionen: </translation>
    </message>
    <message id="0643">
        <source>Final Value Fee: </source>
        <extracomment>Notepad label; keep the blanks at the end.</extracomment>
        <translation>Verkaufsprovision: </translation>
    </message>
    <message id="0644">
        <source>TOTAL FEES: </source>
        <extracomment>Notepad label; keep the blanks at the end.</extracomment>
        <translation>GESAMTGEBÜHREN: </translation>
    </message>
    <message id="0645">
        <source>DUTCH AUCTION:  </source>
        <extracomment>Notepad label; keep the blanks at the end.</extracomment>
        <translation>POWERAUKTION:  </translation>
    </message>
    <message id="0646">
        <source>Number Offered: </source>
        <extracomment>Notepad label; keep the blanks at the end.</extracomment>
        <translation>Angebotene Artikel: </translation>
    </message>
    <message id="0647">
        <source>Opening Price: </source>
        <extracomment>Notepad label; keep the blanks at the end.</extracomment>
        <translation>Startpreis: </translation>
    </message>
    <message id="0648">
        <source>Number Sold: </source>
        <extracomment>Notepad label; keep the blanks at the end.</extracomment>
        <translation>Verkaufte Artikel: </translation>
    </message>
    <message id="0649">
        <source>Sold at: </source>
        <extracomment>Notepad label; keep the blanks at the end.</extracomment>
        <translation>Verkauft für: </translation>
    </message>
    <message id="0650">
        <source>Total Revenue: </source>
        <extracomment>Notepad label; keep the blanks at the end.</extracomment>
        <translation>Gesamtumsatz: </translation>
    </message>
    <message id="0651">
        <source>Extra Features Fees: </source>
        <extracomment>Notepad label; keep the blanks at the end.</extracomment>
        <translation>Gebühren für Zusatzoptionen: </translation>
    </message>
    <message id="0652">
        <source>TOTAL FEES: </source>
        <extracomment>Notepad label; keep the blanks at the end.</extracomment>
        <translation>GESAMTGEBÜHREN: </translation>
    </message>
    <message id="0653">
        <source>Fees Per Item: </source>
        <extracomment>Notepad label; keep the blanks at the end.</extracomment>
        <translation>Gebühr je Artikel: </translation>
    </message>
    <message id="0654">
        <source>PAYMENT FEE:  </source>
        <extracomment>Notepad label; keep the blanks at the end.</extracomment>
        <translation>ZAHLUNGSGEBÜHR:  </translation>
    </message>
    <message id="0655">
        <source>Payment Amount: </source>
        <extracomment>Notepad label; keep the blanks at the end.</extracomment>
        <translation>Zahlungsbetrag: </translation>
    </message>
    <message id="0656">
        <source>PayPal Fee: </source>
        <extracomment>Notepad label; keep the blanks at the end.</extracomment>
        <translation>PayPal-Gebühr: </translation>
    </message>
    <message id="0660">
        <source>New Version Available.</source>
        <extracomment>Title of the update window.</extracomment>
        <translation>Neue Version verfügbar.</translation>
    </message>
    <message id="0661">
        <source>New Version Available.</source>
        <extracomment>Text of the update window.</extracomment>
        <translation>Neue Version verfügbar.</translation>
    </message>
    <message id="0662">
        <source>A setup file will now be retrieved from the internet.</source>
        <extracomment>Message about the update.</extracomment>
        <translation>Jetzt wird eine Installationsdatei aus dem Internet geladen.</translation>
    </message>
    <message id="0663">
        <source>Please choose &apos;Open&apos; when you are prompted.</source>
        <extracomment>Message about the update; the browser&apos;s choice Open.</extracomment>
        <translation>Bitte wählen Sie „Öffnen“, wenn Sie danach gefragt werden.</translation>
    </message>
    <message id="0664">
        <source>Download update</source>
        <extracomment>Button or link of the update window.</extracomment>
        <translation>Update laden</translation>
    </message>
    <message id="0665">
        <source>Ostrevane Message</source>
        <extracomment>Title of a message box; keep the name Ostrevane.</extracomment>
        <translation>Meldung von Ostrevane</translation>
    </message>
    <message id="0667">
        <source>Page </source>
        <extracomment>Printed page label before the number; keep the blank at the end.</extracomment>
        <translation>Seite </translation>
    </message>
    <message id="0668">
        <source>Tessaloom Notes</source>
        <extracomment>Printed header and document name; keep the name Tessaloom.</extracomment>
        <translation>Tessaloom-Notizen</translation>
    </message>
    <message id="0669">
        <source>Visit the Ostrevane website for news and more programs for sellers.</source>
        <extracomment>About window or message; keep the name Ostrevane.</extracomment>
        <translation>Besuchen Sie die Ostrevane-Website: Dort finden Sie Neuigkeiten und weitere Programme für Verkäufer.</translation>
    </message>
    <message id="0670">
        <source>Version </source>
        <extracomment>About window, before the version number; keep the blank at the end.</extracomment>
        <translation>Version </translation>
    </message>
    <message id="0671">
        <source>pack</source>
        <extracomment>Item of the lists of extra pictures: the picture pack.</extracomment>
        <translation>Paket</translation>
    </message>
    <message id="0672">
        <source>iloxx Trust Service SAFETRADE</source>
        <extracomment>Caption of lblTreuhandservice (label, Payment Services tab)</extracomment>
        <translation>iloxx-Treuhandservice SAFETRADE</translation>
    </message>
    <message id="0673">
        <source>eBay.de Dispatch Service</source>
        <extracomment>Caption of lblPostal_12 (label, Shipping tab)</extracomment>
        <translation>eBay.de-Versandservice</translation>
    </message>
    <message id="0674">
        <source>Default</source>
        <extracomment>Entry of the Languages menu: follow the desktop.</extracomment>
        <translation>Sprache: Voreinstellung</translation>
    </message>
    <message id="0675">
        <source>English</source>
        <extracomment>Entry of the Languages menu: the English language.</extracomment>
        <translation>Englisch</translation>
    </message>
    <message id="0678">
        <source>Buy-it-Now Price:</source>
        <extracomment>Label of the price of a fixed-price listing (Single Item tab).</extracomment>
        <translation>Sofort-Kaufen-Preis:</translation>
    </message>
    <message id="0679">
        <source>Opening Bid:</source>
        <extracomment>Label of the opening bid (Multiple Items tab).</extracomment>
        <translation>Startpreis:</translation>
    </message>
    <message id="0680">
        <source>Buy-it-Now Price:</source>
        <extracomment>Label of the price of a fixed-price listing (Multiple Items tab).</extracomment>
        <translation>Sofort-Kaufen-Preis:</translation>
    </message>
    <message id="0681">
        <source>Listing Designer</source>
        <extracomment>Caption of chkListingDesigner (check box, Single Item tab)</extracomment>
        <translation>Angebotsdesigner</translation>
    </message>
    <message id="0685">
        <source>Fixed Price</source>
        <extracomment>Item of the list of listing types (Single Item tab).</extracomment>
        <translation>Festpreis</translation>
    </message>
    <message id="0686">
        <source>No Reserve</source>
        <extracomment>Item of the reserve list (Single Item tab).</extracomment>
        <translation>Ohne Mindestpreis</translation>
    </message>
    <message id="0687">
        <source>Listing Designer</source>
        <extracomment>Caption of chkDutchListingDesigner (check box, Multiple Items tab)</extracomment>
        <translation>Angebotsdesigner</translation>
    </message>
    <message id="0688">
        <source>Fixed-Price Listing</source>
        <extracomment>Item of the list of listing types (Multiple Items tab).</extracomment>
        <translation>Festpreisangebot</translation>
    </message>
    <message id="0689">
        <source>Dutch Auction</source>
        <extracomment>Item of the list of listing types (Multiple Items tab).</extracomment>
        <translation>Powerauktion</translation>
    </message>
    <message id="0690">
        <source>Reserve</source>
        <extracomment>Item of the reserve list (Single Item tab).</extracomment>
        <translation>Mindestpreis</translation>
    </message>
    <message id="0691">
        <source>Auction</source>
        <extracomment>Item of the list of listing types (Single Item tab).</extracomment>
        <translation>Auktion</translation>
    </message>
    <message id="0695">
        <source>US</source>
        <extracomment>Caption of lblCountry_0 (label, Shipping tab)</extracomment>
        <translation>US</translation>
    </message>
    <message id="0696">
        <source>UK</source>
        <extracomment>Caption of lblCountry_2 (label, Shipping tab)</extracomment>
        <translation>UK</translation>
    </message>
    <message id="0697">
        <source>CA</source>
        <extracomment>Caption of lblCountry_1 (label, Shipping tab)</extracomment>
        <translation>CA</translation>
    </message>
    <message id="0698">
        <source>DE</source>
        <extracomment>Caption of lblCountry_3 (label, Shipping tab)</extracomment>
        <translation>DE</translation>
    </message>
    <message id="0699">
        <source>US</source>
        <extracomment>Caption of lblCountry_4 (label, Shipping tab)</extracomment>
        <translation>US</translation>
    </message>
    <message id="0700">
        <source>Type of Listing:</source>
        <extracomment>Caption of lblTypeOfMultiItemListing (label, Multiple Items tab)</extracomment>
        <translation>Angebotsformat:</translation>
    </message>
    <message id="5000">
        <source>Tessaloom</source>
        <extracomment>The name of the program; never translated.</extracomment>
        <translation>Tessaloom</translation>
    </message>
    <message id="5001">
        <source>Works out what eBay charges for a listing and what a payment service keeps of a payment.</source>
        <extracomment>Description in the About window.</extracomment>
        <translation>Berechnet, was eBay für ein Angebot verlangt und was ein Zahlungsdienst von einer Zahlung einbehält.</translation>
    </message>
    <message id="5002">
        <source>The fees are a fixed schedule built into this program. They are not the prices of today. Tessaloom has no connection with eBay or PayPal.</source>
        <extracomment>Disclaimer in the About window.</extracomment>
        <translation>Die Gebühren sind eine feste Tabelle, die in dieses Programm eingebaut ist. Es sind nicht die heutigen Preise. Tessaloom steht in keiner Verbindung zu eBay oder PayPal.</translation>
    </message>
    <message id="5003">
        <source>The help file was not found: </source>
        <extracomment>Error; the path of the file follows.</extracomment>
        <translation>Die Hilfedatei wurde nicht gefunden: </translation>
    </message>
    <message id="5004">
        <source>This address could not be opened: </source>
        <extracomment>Error; the address of a page or a mail follows.</extracomment>
        <translation>Diese Adresse konnte nicht geöffnet werden: </translation>
    </message>
    <message id="5005">
        <source>The notepad is empty. There is nothing to print.</source>
        <extracomment>Message: File > Print Notepad while there is nothing in it.</extracomment>
        <translation>Der Notizblock ist leer. Es gibt nichts zu drucken.</translation>
    </message>
    <message id="5006">
        <source>Closing bid raised to the reserve price</source>
        <extracomment>Status line: the closing bid was below the reserve.</extracomment>
        <translation>Höchstgebot auf den Mindestpreis angehoben</translation>
    </message>
    <message id="5007">
        <source>Closing bid raised to the opening bid</source>
        <extracomment>Status line: the closing bid was below the opening bid.</extracomment>
        <translation>Höchstgebot auf den Startpreis angehoben</translation>
    </message>
    <message id="5008">
        <source>Entry %1 added to the notepad</source>
        <extracomment>Status line; %1 is the number of the entry.</extracomment>
        <translation>Notiz %1 abgelegt</translation>
    </message>
    <message id="5009">
        <source>Settings saved</source>
        <extracomment>Status line: after Options &gt; Save Current Settings.</extracomment>
        <translation>Einstellungen gespeichert</translation>
    </message>
    <message id="5010">
        <source>Enter the opening bid</source>
        <extracomment>Status line: Calculate was pressed without an opening bid.</extracomment>
        <translation>Geben Sie den Startpreis ein</translation>
    </message>
    <message id="5011">
        <source>Copied</source>
        <extracomment>Status line: the notepad or the total is in the clipboard.</extracomment>
        <translation>Kopiert</translation>
    </message>
</context>
</TS>
