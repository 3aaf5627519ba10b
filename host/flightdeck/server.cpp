#include <algorithm>
#include <array>
#include <atomic>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/http.hpp>
#include <boost/beast/websocket.hpp>
#include <charconv>
#include <chrono>
#include <deque>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <optional>
#include <thread>

#include "host/flightdeck/deck.h"
#include "host/flightdeck/messages.h"
#include "host/flightdeck/picture_stream.h"
#include "host/flightdeck/request_text.h"
#include "host/root_folder.h"

// The web server: one thread, asynchronous. It serves the page's folder, the fonts and images that pictures
// name, and one WebSocket at /socket. It keeps nothing of a browser that has gone.

namespace host {
namespace {

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = beast::http;
namespace websocket = beast::websocket;
using asio::ip::tcp;
using nlohmann::json;

using Clock = std::chrono::steady_clock;

constexpr std::size_t kMaxMessage = 64 * 1024;
constexpr std::size_t kMaxWatched = 2000;
constexpr std::size_t kMaxBrowsers = 32;
constexpr int kMaxConnections = 200;        // of HTTP, before they become a browser's link
constexpr std::size_t kMaxCommands = 1000;  // that wait for the host's loop, of all browsers
constexpr int kMessageBurst = 400;          // of one browser
constexpr double kMessagesPerSecond = 100;
constexpr int kSendBuffer = 256 * 1024;  // bytes: what is on its way to a slow browser is soon old
constexpr auto kPicturePeriod =
    std::chrono::milliseconds(30);  // shorter than the workers', so that none waits
constexpr auto kBeat = std::chrono::milliseconds(500);
constexpr auto kLoopSilence = std::chrono::seconds(1);  // after which the host's loop counts as stopped
constexpr auto kPeerSilence = std::chrono::seconds(20);

constexpr std::array<std::string_view, 10> kScreens = {"capt_outb", "capt_inb", "fo_inb", "fo_outb", "lower",
                                                       "hud",       "stby",     "efb_l",  "efb_r",   "debug"};

std::size_t ScreenIndex(std::string_view name) {
    return static_cast<std::size_t>(std::find(kScreens.begin(), kScreens.end(), name) - kScreens.begin());
}

std::string_view TargetOf(const http::request<http::string_body>& request) {
    return {request.target().data(), request.target().size()};
}

bool IsWithin(const std::filesystem::path& file, const std::filesystem::path& folder) {
    return std::mismatch(folder.begin(), folder.end(), file.begin(), file.end()).first == folder.end();
}

}  // namespace

class Browser;

// The last picture of a screen, encoded once for all browsers.
struct LastPicture {
    std::string bytes;
    std::uint64_t number = 0;         // ours, 0 = none yet
    std::uint64_t source_number = 0;  // as the source counts, which may begin anew
    Clock::time_point asked{};
};

struct FlightDeck::Network {
    DeckSettings settings;
    PictureSource pictures;
    int connections = 0;  // network thread only
    asio::io_context io{1};
    tcp::acceptor acceptor{io};
    asio::steady_timer accept_pause{io};
    std::thread thread;
    std::vector<std::weak_ptr<Browser>> browsers;            // network thread only
    std::map<std::string, std::string> values;               // network thread only: last published
    std::string greeting;                                    // network thread only
    std::array<LastPicture, kScreens.size()> last_pictures;  // network thread only

    std::atomic<Clock::rep> loop_seen = 0;  // when the host's loop was last here
    std::mutex lock;                        // over what both threads touch
    std::vector<DeckCommand> commands;
    std::set<std::string> watched;

    void Accept();
    void Publish(const std::map<std::string, std::string>& changed);
    void RenewWatched();
    bool MayConnect(const http::request<http::string_body>& request) const;
    bool HasRoom();
    bool LoopRuns() const {
        return Clock::now().time_since_epoch() - Clock::duration(loop_seen) < kLoopSilence;
    }
    const LastPicture& PictureOf(std::size_t screen);
};

// One WebSocket. At most one write is under way; what a slow browser misses is not kept for it.
class Browser : public std::enable_shared_from_this<Browser> {
  public:
    Browser(tcp::socket&& socket, FlightDeck::Network& network)
        : socket_(std::move(socket)), network_(network), timer_(network.io) {}

    void Run(http::request<http::string_body> request) {
        // A page that only looks sends nothing: pings tell whether it is still there.
        socket_.set_option(websocket::stream_base::timeout{std::chrono::seconds(10), kPeerSilence, true});
        websocket::permessage_deflate deflate;
        deflate.server_enable = true;
        socket_.set_option(deflate);
        socket_.read_message_max(kMaxMessage);
        socket_.async_accept(request, [self = shared_from_this()](beast::error_code error) {
            if (error) return;
            self->open_ = true;
            self->pending_text_.push_back(self->network_.greeting);
            self->Read();
            self->Tick();
        });
    }

    const std::set<std::string>& watched() const { return watched_; }

    void TakeValues(const std::map<std::string, std::string>& changed) {
        for (const auto& [name, value] : changed)
            if (watched_.contains(name)) changed_[name] = value;
        Write();
    }

  private:
    void Read() {
        socket_.async_read(buffer_, [self = shared_from_this()](beast::error_code error, std::size_t) {
            if (error) return self->Leave();
            const std::string text = beast::buffers_to_string(self->buffer_.data());
            self->buffer_.consume(self->buffer_.size());
            if (const std::string reason = self->Take(text); !reason.empty()) return self->Close(reason);
            self->Read();
        });
    }

    // Acts on one message; the reason for which this browser is closed, or empty.
    std::string Take(const std::string& text) {
        if (!TakeFromAllowance()) return "too many messages";
        if (!socket_.got_text()) return "binary messages are not understood";
        const json message = json::parse(text, nullptr, false);
        if (!message.is_object() || !message.contains("type") || !message["type"].is_string())
            return "not a message: an object with a type";
        const std::string type = message["type"];
        if (type == "screens") {
            std::set<std::string> names;
            if (const std::string reason = ReadNames(message, kScreens.size(), names); !reason.empty())
                return reason;
            return TakeScreens(names);
        }
        if (type == "watch") {
            if (const std::string reason = ReadNames(message, kMaxWatched, watched_); !reason.empty())
                return reason;
            network_.RenewWatched();
            for (const auto& [name, value] : network_.values)
                if (watched_.contains(name)) changed_[name] = value;
            Write();
            return {};
        }
        DeckCommand command{};
        if (const std::string reason = ReadCommand(message, type, command); !reason.empty()) return reason;
        const std::lock_guard guard(network_.lock);
        if (network_.commands.size() < kMaxCommands) network_.commands.push_back(std::move(command));
        return {};
    }

    // A browser forgets a screen that it doesn't want, and begins anew when it wants it again.
    std::string TakeScreens(const std::set<std::string>& names) {
        std::array<bool, kScreens.size()> wanted{};
        for (const std::string& name : names) {
            const std::size_t index = ScreenIndex(name);
            if (index == kScreens.size()) return "no such screen";
            wanted[index] = true;
        }
        for (std::size_t i = 0; i < kScreens.size(); ++i)
            if (!wanted[i]) streams_[i] = {};
        screens_wanted_ = wanted;
        return {};
    }

    // A bucket of messages that fills with time; false when it is empty.
    bool TakeFromAllowance() {
        const auto now = Clock::now();
        const double seconds = std::chrono::duration<double>(now - last_message_).count();
        last_message_ = now;
        allowance_ = std::min<double>(kMessageBurst, allowance_ + seconds * kMessagesPerSecond) - 1;
        return allowance_ >= 0;
    }

    void Tick() {
        timer_.expires_after(kPicturePeriod);
        timer_.async_wait([self = shared_from_this()](beast::error_code error) {
            if (error || !self->open_) return;
            self->Write();
            self->Tick();
        });
    }

    // Sends the next message, if none is under way: first texts, then values, then pictures, else a sign of
    // life. Nothing while the host's loop stands still: the page had better blank than show what was.
    void Write() {
        if (!open_ || writing_ || !network_.LoopRuns()) return;
        bool binary = false;
        if (!pending_text_.empty()) {
            outgoing_ = std::move(pending_text_.front());
            pending_text_.pop_front();
        } else if (!changed_.empty()) {
            outgoing_ = json{{"type", "values"}, {"values", changed_}}.dump(-1, ' ', false,
                                                                            json::error_handler_t::replace);
            changed_.clear();
        } else {
            outgoing_ = NextPictures();
            binary = !outgoing_.empty();
            if (!binary) {
                if (Clock::now() - last_write_ < kBeat) return;
                outgoing_ = R"({"type":"beat"})";
            }
        }
        writing_ = true;
        last_write_ = Clock::now();
        socket_.binary(binary);
        socket_.async_write(asio::buffer(outgoing_),
                            [self = shared_from_this(), binary](beast::error_code error, std::size_t) {
                                self->writing_ = false;
                                if (error) return self->Leave();
                                if (!binary) self->Write();  // pictures wait for their period
                            });
    }

    // Every wanted screen whose picture has changed: a byte with the screen's place, 4 bytes of length, the
    // message.
    std::string NextPictures() {
        std::string all;
        for (std::size_t i = 0; i < kScreens.size(); ++i) {
            if (!screens_wanted_[i]) continue;
            const LastPicture& picture = network_.PictureOf(i);
            if (picture.number == 0 || picture.number == streams_[i].number) continue;
            const std::string message = NextPictureMessage(streams_[i], picture.bytes, picture.number);
            if (message.empty()) continue;
            all += static_cast<char>(i);
            for (int shift = 0; shift < 32; shift += 8)
                all += static_cast<char>(message.size() >> shift & 255);
            all += message;
        }
        return all;
    }

    void Close(const std::string& reason) {
        open_ = false;
        websocket::close_reason close(websocket::close_code::policy_error, reason.substr(0, 120));
        socket_.async_close(close, [self = shared_from_this()](beast::error_code) { self->Leave(); });
    }

    void Leave() {
        open_ = false;
        timer_.cancel();
        watched_.clear();
        network_.RenewWatched();
    }

    websocket::stream<beast::tcp_stream> socket_;
    FlightDeck::Network& network_;
    asio::steady_timer timer_;
    beast::flat_buffer buffer_;
    bool open_ = false, writing_ = false;
    std::string outgoing_;
    std::deque<std::string> pending_text_;
    std::map<std::string, std::string> changed_;
    std::set<std::string> watched_;
    std::array<bool, kScreens.size()> screens_wanted_{};
    std::array<PictureStream, kScreens.size()> streams_;
    Clock::time_point last_write_{}, last_message_ = Clock::now();
    double allowance_ = kMessageBurst;
};

namespace {

// One HTTP connection, until it is closed or becomes a WebSocket.
class Connection : public std::enable_shared_from_this<Connection> {
  public:
    Connection(tcp::socket&& socket, FlightDeck::Network& network)
        : stream_(std::move(socket)), network_(network) {
        ++network_.connections;
    }
    ~Connection() { --network_.connections; }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    void Read() {
        parser_.emplace();
        parser_->body_limit(1024);
        parser_->header_limit(8192);
        stream_.expires_after(std::chrono::seconds(30));
        http::async_read(stream_, buffer_, *parser_,
                         [self = shared_from_this()](beast::error_code error, std::size_t) {
                             if (!error) self->Answer(self->parser_->release());
                         });
    }

  private:
    void Answer(http::request<http::string_body> request) {
        const std::string_view path = TargetPath(TargetOf(request));
        if (!network_.MayConnect(request))
            return Send(request, http::status::forbidden, "text/plain", "403\n");
        if (websocket::is_upgrade(request)) {
            if (path != "/socket") return SendNotFound(request);
            if (!network_.HasRoom())
                return Send(request, http::status::service_unavailable, "text/plain", "503\n");
            stream_.expires_never();
            const auto browser = std::make_shared<Browser>(stream_.release_socket(), network_);
            network_.browsers.push_back(browser);
            return browser->Run(std::move(request));
        }
        if (request.method() != http::verb::get && request.method() != http::verb::head)
            return Send(request, http::status::method_not_allowed, "text/plain", "405\n");
        Serve(request, path);
    }

    void Serve(const http::request<http::string_body>& request, std::string_view path) {
        if (path.starts_with("/font/")) return SendFont(request, path.substr(6));
        if (path.starts_with("/image/")) return SendImage(request, path.substr(7));
        SendPageFile(request, path);
    }

    // A file of the page's folder, by one plain name; every screen of its own is the one page.
    void SendPageFile(const http::request<http::string_body>& request, std::string_view path) {
        std::string name(path.substr(std::min<std::size_t>(1, path.size())));
        if (name.empty()) name = "index.html";
        if (name.starts_with("screen/")) {
            if (ScreenIndex(std::string_view(name).substr(7)) == kScreens.size())
                return SendNotFound(request);
            name = "index.html";
        }
        const std::filesystem::path file = std::filesystem::path(network_.settings.page_folder) / name;
        std::error_code failed;
        // A link in the folder is not followed: it may lead anywhere.
        if (!IsPlainFileName(name) ||
            !std::filesystem::is_regular_file(std::filesystem::symlink_status(file, failed)))
            return SendNotFound(request);
        SendFile(request, file);
    }

    void SendFont(const http::request<http::string_body>& request, std::string_view number) {
        const auto& fonts = network_.settings.fonts;
        std::size_t index = 0;
        const auto [end, failed] = std::from_chars(number.data(), number.data() + number.size(), index);
        if (failed != std::errc{} || end != number.data() + number.size() || index >= fonts.size() ||
            fonts[index].second.empty())
            return SendNotFound(request);
        SendFile(request, fonts[index].second);
    }

    // An image by the name that pictures give it: what came to the module as a stream, or a file under the
    // root, nothing else.
    void SendImage(const http::request<http::string_body>& request, std::string_view encoded) {
        const std::optional<std::string> name = DecodePercent(encoded);
        const std::filesystem::path root = network_.settings.root;
        std::string stream;
        if (name && network_.settings.stream_image && network_.settings.stream_image(*name, stream))
            return Send(request, http::status::ok, MediaType(*name), std::move(stream));
        std::error_code failed;
        std::filesystem::path file = name ? FindUnderRoot(root.string(), *name) : std::filesystem::path{};
        if (!file.empty()) file = std::filesystem::canonical(file, failed);
        if (failed || !IsWithin(file, std::filesystem::canonical(root, failed)) || failed ||
            !MediaType(file).starts_with("image/") || !std::filesystem::is_regular_file(file, failed))
            return SendNotFound(request);
        SendFile(request, file);
    }

    void SendFile(const http::request<http::string_body>& request, const std::filesystem::path& file) {
        std::ifstream in(file, std::ios::binary);
        if (!in) return SendNotFound(request);
        Send(request, http::status::ok, MediaType(file), {std::istreambuf_iterator<char>(in), {}});
    }

    void SendNotFound(const http::request<http::string_body>& request) {
        Send(request, http::status::not_found, "text/plain", "404\n");
    }

    void Send(const http::request<http::string_body>& request, http::status status, std::string_view type,
              std::string body) {
        auto response = std::make_shared<http::response<http::string_body>>(status, request.version());
        response->set(http::field::content_type, beast::string_view(type.data(), type.size()));
        response->set(http::field::cache_control, "no-cache");
        response->set("X-Content-Type-Options", "nosniff");
        response->set("Content-Security-Policy", "default-src 'self'; frame-ancestors 'none'");
        // The token came with the address of the page; what the page loads comes with a cookie.
        const std::string token = QueryValue(TargetOf(request), "token");
        if (!token.empty() && token == network_.settings.token)
            response->set(http::field::set_cookie, "token=" + token + "; HttpOnly; SameSite=Strict; Path=/");
        response->keep_alive(request.keep_alive());
        response->body() = std::move(body);
        response->prepare_payload();
        if (request.method() == http::verb::head) response->body().clear();
        stream_.expires_after(std::chrono::seconds(30));
        http::async_write(stream_, *response,
                          [self = shared_from_this(), response](beast::error_code error, std::size_t) {
                              if (!error && response->keep_alive()) return self->Read();
                              beast::error_code ignored;
                              self->stream_.socket().shutdown(tcp::socket::shutdown_send, ignored);
                          });
    }

    beast::tcp_stream stream_;
    FlightDeck::Network& network_;
    beast::flat_buffer buffer_;
    std::optional<http::request_parser<http::string_body>> parser_;
};

}  // namespace

void FlightDeck::Network::Accept() {
    acceptor.async_accept([this](beast::error_code error, tcp::socket socket) {
        if (error == asio::error::operation_aborted) return;
        if (!error) {
            beast::error_code ignored;
            socket.set_option(tcp::no_delay(true), ignored);
            socket.set_option(asio::socket_base::send_buffer_size(kSendBuffer), ignored);
            if (connections < kMaxConnections) std::make_shared<Connection>(std::move(socket), *this)->Read();
            return Accept();
        }
        // Out of files, say: time may help.
        accept_pause.expires_after(std::chrono::milliseconds(100));
        accept_pause.async_wait([this](beast::error_code stopped) {
            if (!stopped) Accept();
        });
    });
}

bool FlightDeck::Network::HasRoom() {
    std::erase_if(browsers, [](const std::weak_ptr<Browser>& browser) { return browser.expired(); });
    return browsers.size() < kMaxBrowsers;
}

// Asked of the source once a period, whoever wants it.
const LastPicture& FlightDeck::Network::PictureOf(std::size_t screen) {
    LastPicture& last = last_pictures[screen];
    const auto now = Clock::now();
    if (now - last.asked < kPicturePeriod / 2) return last;
    last.asked = now;
    std::string bytes;
    std::uint64_t number = 0;
    if (pictures && pictures(std::string(kScreens[screen]), last.source_number, bytes, number)) {
        last.bytes = std::move(bytes);
        last.source_number = number;
        ++last.number;
    }
    return last;
}

// A page of another site may not reach the deck, nor may a name that such a site has pointed at this machine;
// on a wide address whoever comes must know the token.
bool FlightDeck::Network::MayConnect(const http::request<http::string_body>& request) const {
    const auto field = [&](http::field name) {
        const auto value = request[name];
        return std::string(value.data(), value.size());
    };
    const std::string origin = field(http::field::origin), host = field(http::field::host);
    if (!origin.empty() && origin != "http://" + host) return false;
    const std::string_view name = HostName(host);
    if (settings.token.empty() && name != "localhost" && name != "127.0.0.1" && name != "[::1]" &&
        name != settings.address)
        return false;
    if (settings.token.empty()) return true;
    return SameToken(QueryValue(TargetOf(request), "token"), settings.token) ||
           SameToken(CookieValue(field(http::field::cookie), "token"), settings.token);
}

void FlightDeck::Network::RenewWatched() {
    std::set<std::string> names;
    for (const auto& weak : browsers)
        if (const auto browser = weak.lock())
            names.insert(browser->watched().begin(), browser->watched().end());
    const std::lock_guard guard(lock);
    watched = std::move(names);
}

void FlightDeck::Network::Publish(const std::map<std::string, std::string>& changed) {
    for (const auto& weak : browsers)
        if (const auto browser = weak.lock()) browser->TakeValues(changed);
}

FlightDeck::FlightDeck(DeckSettings settings, PictureSource pictures)
    : network_(std::make_unique<Network>()) {
    network_->settings = std::move(settings);
    network_->pictures = std::move(pictures);
}

FlightDeck::~FlightDeck() {
    Stop();
}

bool FlightDeck::Start(std::string& error) {
    Network& network = *network_;
    beast::error_code failed;
    std::error_code missing;
    if (!std::filesystem::is_directory(network.settings.page_folder, missing)) {
        error = "the page's folder " + network.settings.page_folder + " is missing";
        return false;
    }
    const auto address = asio::ip::make_address(network.settings.address, failed);
    if (failed) {
        error = network.settings.address + " is no address";
        return false;
    }
    if (!address.is_loopback() && network.settings.token.empty()) {
        error = "an address wider than loopback needs a token";
        return false;
    }
    const tcp::endpoint endpoint(address, static_cast<unsigned short>(network.settings.port));
    network.acceptor.open(endpoint.protocol(), failed);
    if (!failed) network.acceptor.set_option(asio::socket_base::reuse_address(true), failed);
    if (!failed) network.acceptor.bind(endpoint, failed);
    if (!failed) network.acceptor.listen(asio::socket_base::max_listen_connections, failed);
    if (failed) {
        error =
            network.settings.address + ":" + std::to_string(network.settings.port) + ": " + failed.message();
        return false;
    }
    network.settings.port = network.acceptor.local_endpoint().port();
    network.Accept();
    network.thread = std::thread([&network] { network.io.run(); });
    return true;
}

void FlightDeck::Stop() {
    if (!network_->thread.joinable()) return;
    network_->io.stop();
    network_->thread.join();
}

int FlightDeck::port() const {
    return network_->settings.port;
}

std::vector<DeckCommand> FlightDeck::TakeCommands() {
    network_->loop_seen = Clock::now().time_since_epoch().count();
    const std::lock_guard guard(network_->lock);
    return std::exchange(network_->commands, {});
}

std::set<std::string> FlightDeck::WatchedNames() {
    const std::lock_guard guard(network_->lock);
    return network_->watched;
}

void FlightDeck::PublishValues(std::map<std::string, std::string> values) {
    asio::post(network_->io, [network = network_.get(), values = std::move(values)]() mutable {
        std::map<std::string, std::string> changed;
        for (const auto& [name, value] : values) {
            const auto known = network->values.find(name);
            if (known == network->values.end() || known->second != value) changed.emplace(name, value);
        }
        network->values = std::move(values);
        if (!changed.empty()) network->Publish(changed);
    });
}

void FlightDeck::SetGreeting(std::string text) {
    asio::post(network_->io,
               [network = network_.get(), text = std::move(text)] { network->greeting = text; });
}

bool IsLoopback(const std::string& address) {
    beast::error_code failed;
    const auto parsed = asio::ip::make_address(address, failed);
    return !failed && parsed.is_loopback();
}

}  // namespace host
